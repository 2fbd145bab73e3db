// The history beside boost::multi_index (ranked by category and time, hashed by time and by object): a
// refresh from fetched values that takes the place of the list before it, a page of ten records from its
// middle, and the position of an entry by its time.
#include <benchmark/benchmark.h>

#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/identity.hpp>
#include <boost/multi_index/mem_fun.hpp>
#include <boost/multi_index/ranked_index.hpp>
#include <boost/multi_index_container.hpp>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "Common/RecordWriter.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/ZESocketTransport.h"
#include "apiwrapper/Zelto.h"
#include "zelhost/history/HistoryEntries.h"
#include "zelhost/history/HistoryList.h"

namespace {

constexpr int kPage = 10;
constexpr int kRecordFields = 10;
constexpr CHistoryInfo::KEY kRecord[kRecordFields] = {
    CHistoryInfo::KEY_TYPE,   CHistoryInfo::KEY_IDENTITY, CHistoryInfo::KEY_DISPLAY_NAME,
    CHistoryInfo::KEY_UNSEEN, CHistoryInfo::KEY_MEMBERS,  CHistoryInfo::KEY_CONFERENCE,
    CHistoryInfo::KEY_PHONE,  CHistoryInfo::KEY_INCOMING, CHistoryInfo::KEY_DURATION,
    CHistoryInfo::KEY_TIME};

// What the runtime has told of its calls, whose proxies no runtime stands behind.
class Past {
 public:
  struct Entry {
    std::unique_ptr<Call> call;
    ZEIntDict properties;
    zelhost::CallMembers members;
  };

  explicit Past(int calls) {
    std::mt19937 random(1);
    for (int i = 0; i < calls; ++i) {
      const std::string person = std::to_string(random() % 200);
      Entry entry{std::make_unique<Call>(i + 1, &m_root), {}, {}};
      entry.properties.insert(Call::P_START_TIME,
                              ZEString::from(static_cast<int>(1'700'000'000 + random() % 10'000'000)));
      entry.properties.insert(Call::P_UNSEEN, random() % 20 == 0 ? "1" : "0");
      entry.properties.insert(Call::P_INCOMING, random() % 2 == 0 ? "1" : "0");
      entry.properties.insert(Call::P_CONFERENCE, "0");
      ZEIntDict member;
      member.insert(CallMember::P_IDENTITY, ("zelto.person." + person).c_str());
      member.insert(CallMember::P_DISPLAY_NAME, ("Somebody " + person).c_str());
      member.insert(CallMember::P_TYPE, "1");
      member.insert(CallMember::P_STATUS, "11");
      entry.members.push_back(member);
      m_entries.push_back(std::move(entry));
    }
  }
  const std::vector<Entry>& Entries() const { return m_entries; }

 private:
  ZESocketTransport m_transport{"/nobody/listens"};
  Zelto m_root{&m_transport};
  std::vector<Entry> m_entries;
};

void Write(CHistoryInfo& entry, zelto::RecordWriter& writer) {
  for (const CHistoryInfo::KEY key : kRecord) writer.Field(entry.Get(key).view());
}

struct Ours {
  void Refresh(const Past& past) {
    HistoryList fresh;
    fresh.Reserve(past.Entries().size());
    for (const Past::Entry& fetched : past.Entries()) {
      auto entry = std::make_unique<CHistoryInfo>(fetched.call.get());
      zelhost::SetCallHistoryProperty(*entry, fetched.properties, fetched.members);
      fresh.Append(std::move(entry));
    }
    list = std::move(fresh);
    list.Sort();
  }
  void ReadPage(int start, std::string& text) {
    text.clear();
    zelto::RecordWriter writer(text);
    for (int i = start; i < start + kPage; ++i) Write(*list.At(i), writer);
  }
  int PositionOf(const ZEString& time) { return list.PositionOf(time); }
  HistoryList list;
};

struct PeerEntry {
  mutable CHistoryInfo info;  // no part of it that an index goes by changes
  std::string_view Time() const { return info.Get(CHistoryInfo::KEY_TIME).view(); }
  const ZEObject* Object() const { return info.Object(); }
};
struct PeerOrder {
  bool operator()(const PeerEntry& a, const PeerEntry& b) const {
    return CHistoryInfo::Compare(&a.info, &b.info);
  }
};

namespace mi = boost::multi_index;
using PeerIndex = mi::multi_index_container<
    PeerEntry,
    mi::indexed_by<mi::ranked_non_unique<mi::identity<PeerEntry>, PeerOrder>,
                   mi::hashed_non_unique<mi::const_mem_fun<PeerEntry, std::string_view, &PeerEntry::Time>,
                                         std::hash<std::string_view>>,
                   mi::hashed_unique<mi::const_mem_fun<PeerEntry, const ZEObject*, &PeerEntry::Object>>>>;

struct Peer {
  void Refresh(const Past& past) {
    PeerIndex fresh;
    fresh.get<1>().reserve(past.Entries().size());
    fresh.get<2>().reserve(past.Entries().size());
    for (const Past::Entry& fetched : past.Entries()) {
      PeerEntry entry{CHistoryInfo(fetched.call.get())};
      zelhost::SetCallHistoryProperty(entry.info, fetched.properties, fetched.members);
      fresh.insert(std::move(entry));
    }
    index.swap(fresh);
  }
  void ReadPage(int start, std::string& text) {
    text.clear();
    zelto::RecordWriter writer(text);
    auto entry = index.nth(static_cast<std::size_t>(start));
    for (int i = 0; i < kPage; ++i, ++entry) Write(entry->info, writer);
  }
  int PositionOf(const ZEString& time) {
    const auto found = index.get<1>().find(time.view());
    if (found == index.get<1>().end()) return -1;
    return static_cast<int>(index.rank(index.project<0>(found)));
  }
  PeerIndex index;
};

template <class History>
void Refresh(benchmark::State& state, int calls) {
  const Past past(calls);
  History history;
  for (auto _ : state) history.Refresh(past);
  state.SetItemsProcessed(state.iterations() * calls);
}

template <class History>
void ReadPage(benchmark::State& state, int calls) {
  const Past past(calls);
  History history;
  history.Refresh(past);
  std::string text;
  for (auto _ : state) {
    history.ReadPage(calls / 2, text);
    benchmark::DoNotOptimize(text.data());
  }
}

template <class History>
void FindTime(benchmark::State& state, int calls) {
  const Past past(calls);
  History history;
  history.Refresh(past);
  std::mt19937 random(2);
  std::vector<ZEString> times(4096);
  for (ZEString& time : times) {
    time = past.Entries()[random() % past.Entries().size()].properties.find(Call::P_START_TIME);
  }
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(history.PositionOf(times[next]));
    next = (next + 1) % times.size();
  }
}

template <class History>
bool Register(const std::string& name) {
  for (const int calls : {1000, 10'000}) {
    const std::string suffix = name + std::to_string(calls);
    benchmark::RegisterBenchmark(("RefreshHistory/" + suffix).c_str(), Refresh<History>, calls);
    benchmark::RegisterBenchmark(("HistoryPage/" + suffix).c_str(), ReadPage<History>, calls);
    benchmark::RegisterBenchmark(("HistoryByTime/" + suffix).c_str(), FindTime<History>, calls);
  }
  return true;
}
[[maybe_unused]] const bool g_registered = Register<Ours>("zelto") && Register<Peer>("multi_index");

}  // namespace

BENCHMARK_MAIN();
