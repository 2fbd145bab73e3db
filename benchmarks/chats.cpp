// An opened chat beside boost::multi_index (in order, and hashed so that a message that is deleted is found):
// taking in the messages that the runtime listed, and a page of ten records from the middle.
#include <benchmark/benchmark.h>

#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/identity.hpp>
#include <boost/multi_index/random_access_index.hpp>
#include <boost/multi_index_container.hpp>
#include <ctime>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apiwrapper/ZESocketTransport.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ChatRecords.h"
#include "zelhost/chats/RecentMessages.h"

namespace {

// Of this thread's work, so that a busy machine does not count.
double Seconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

constexpr int kPage = 10;

// What the runtime tells of a message; one in eight is no text.
ZEIntDict Type(int i) {
  ZEIntDict values;
  values.insert(ChatMessage::P_TYPE, i % 8 == 5 ? "2" : "3");
  return values;
}
ZEIntDict Values(int i) {
  ZEIntDict values = Type(i);
  values.insert(ChatMessage::P_AUTHOR, i % 2 == 0 ? "zelto.ann" : "zelto.bob");
  values.insert(ChatMessage::P_AUTHOR_DISPLAY_NAME, i % 2 == 0 ? "Ann Archer" : "Bob de Boer");
  values.insert(ChatMessage::P_TIMESTAMP, ZEString::from(1'700'000'000 + 60 * i));
  values.insert(ChatMessage::P_BODY,
                ("This is message " + std::to_string(i) + ", and an answer to the last").c_str());
  values.insert(ChatMessage::P_STATUS, "4");
  return values;
}

// The objects of a chat's messages.
class Listed {
 public:
  explicit Listed(int count) : m_messages(static_cast<unsigned>(count)) {
    m_root.SetLogLevel(0);
    m_root.m_reportLeaks = false;
    for (unsigned i = 0; i < m_messages.size(); ++i) {
      ZEObject* message = m_root.getChatMessage(i + 1);
      m_messages[i] = message;
    }
  }
  // As a request for all of them leaves them.
  const ZEPtrVector& Told(ZEIntDict (*tell)(int)) {
    if (m_values.empty()) {
      for (unsigned i = 0; i < m_messages.size(); ++i) m_values.push_back(tell(static_cast<int>(i)));
    }
    for (unsigned i = 0; i < m_messages.size(); ++i) {
      zelhost::MessageAt(m_messages, i)->propCache = m_values[i];
    }
    return m_messages;
  }

 private:
  zelhost::ServiceHostLock m_lock{"benchmark"};
  ZESocketTransport m_transport{"/nowhere"};
  CZelto m_root{&m_transport, false, ZEString()};
  ZEPtrVector m_messages;
  std::vector<ZEIntDict> m_values;
};

// Both ask for the messages of a page before they write it, and both keep separators out of the fields.
void WriteRecords(const ZEPtrVector& page, std::string& text) {
  text.clear();
  zelto::RecordWriter writer(text);
  for (unsigned i = 0; i < page.size(); ++i) {
    const ZEIntDict& values = zelhost::MessageAt(page, i)->propCache;
    zelhost::WriteMessageWithAuthor(writer, values, values.find(ChatMessage::P_STATUS));
  }
}

namespace mi = boost::multi_index;
using PeerIndex = mi::multi_index_container<
    CChatMessage*, mi::indexed_by<mi::random_access<>, mi::hashed_unique<mi::identity<CChatMessage*>>>>;

struct Peer {
  void Open(const ZEPtrVector& messages) {
    index.get<0>().reserve(messages.size());
    index.get<1>().reserve(messages.size());
    for (unsigned i = 0; i < messages.size(); ++i) {
      CChatMessage* message = zelhost::MessageAt(messages, i);
      const ZEIntDict values = std::exchange(message->propCache, {});
      if (CChatMessage::IsText(values.find(ChatMessage::P_TYPE).toInt())) index.push_back(message);
    }
  }
  ZEPtrVector Page(int start) const {
    ZEPtrVector page(kPage);
    auto message = index.begin() + start;
    for (unsigned i = 0; i < kPage; ++i, ++message) {
      ZEObject* slot = *message;
      page[i] = slot;
    }
    return page;
  }
  PeerIndex index;
};

struct Ours {
  void Open(const ZEPtrVector& messages) { dialog.Fill(messages); }
  ZEPtrVector Page(int start) { return dialog.Slots(start, kPage); }
  ChatDialog dialog;
};

template <class Dialog>
void Open(benchmark::State& state, int messages) {
  Listed listed(messages);
  for (auto _ : state) {
    const ZEPtrVector& told = listed.Told(Type);
    auto dialog = std::make_unique<Dialog>();
    const double start = Seconds();
    dialog->Open(told);
    state.SetIterationTime(Seconds() - start);
  }
}

template <class Dialog>
void ReadPage(benchmark::State& state, int messages) {
  Listed listed(messages);
  Dialog dialog;
  dialog.Open(listed.Told(Values));
  listed.Told(Values);
  std::string text;
  for (auto _ : state) {
    WriteRecords(dialog.Page(messages / 2), text);
    benchmark::DoNotOptimize(text.data());
  }
  state.SetItemsProcessed(state.iterations() * kPage);
}

template <class Dialog>
bool Register(const std::string& name) {
  for (const int messages : {1000, 10'000}) {
    const std::string suffix = name + std::to_string(messages);
    benchmark::RegisterBenchmark(("OpenChat/" + suffix).c_str(), Open<Dialog>, messages)->UseManualTime();
    benchmark::RegisterBenchmark(("ChatPage/" + suffix).c_str(), ReadPage<Dialog>, messages);
  }
  return true;
}
[[maybe_unused]] const bool g_registered = Register<Ours>("zelto") && Register<Peer>("multi_index");

}  // namespace

BENCHMARK_MAIN();
