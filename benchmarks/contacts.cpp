// The contact list beside boost::multi_index (hashed by identity, ranked by category and name): building it
// from fetched values, a page of ten records from its middle, and a change of one contact's presence.
#include <benchmark/benchmark.h>
#include <strings.h>

#include <array>
#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/identity.hpp>
#include <boost/multi_index/mem_fun.hpp>
#include <boost/multi_index/ranked_index.hpp>
#include <boost/multi_index_container.hpp>
#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Common/RecordWriter.h"
#include "apiwrapper/ZEIntDict.h"
#include "zelhost/contacts/ContactList.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kPage = 10;

// What the runtime has told of each contact.
const std::vector<ZEIntDict>& Fetched(int contacts) {
  static std::vector<ZEIntDict> fetched;
  static std::mt19937 random(1);
  static constexpr const char* kFirst[] = {"Ann", "bob",       "Carla", "Dimitri",
                                           "eve", "Françoise", "Gül",   "Hiro"};
  static constexpr const char* kLast[] = {"Archer", "de Boer", "Castillo", "Dvořák", "Eriksson", "Fischer"};
  static constexpr const char* kAvailabilities[] = {"1", "5", "7", "8", "9", "10", "2", "9"};
  while (static_cast<int>(fetched.size()) < contacts) {
    const std::string number = std::to_string(random() % 1'000'000);
    const std::string name = std::string(kFirst[random() % 8]) + " " + kLast[random() % 6] + " " + number;
    const std::string identity = "zelto." + std::to_string(fetched.size()) + "." + number;
    ZEIntDict values;
    values.insert(Contact::P_IDENTITY, identity.c_str());
    values.insert(Contact::P_DISPLAY_NAME, name.c_str());
    values.insert(Contact::P_AVAILABILITY, kAvailabilities[random() % 8]);
    values.insert(Contact::P_GENDER, "1");
    values.insert(Contact::P_PHONE_NUMBER, "");
    values.insert(Contact::P_AVATAR, ("file:///mtd_rwcommon/avatar/" + identity + ".jpg").c_str());
    values.insert(Contact::P_33, "At home, and in the mood for a call");
    fetched.push_back(values);
  }
  return fetched;
}

struct PeerContact {
  std::array<ZEString, zelhost::kContactRecordFields> fields;
  int category = 4;

  std::string_view Identity() const { return fields[0].view(); }
};

struct PeerOrder {
  bool operator()(const PeerContact& a, const PeerContact& b) const {
    if (a.category != b.category) return a.category < b.category;
    return strcasecmp(a.fields[2], b.fields[2]) < 0;
  }
};

namespace mi = boost::multi_index;
using PeerIndex = mi::multi_index_container<
    PeerContact, mi::indexed_by<mi::hashed_non_unique<
                                    mi::const_mem_fun<PeerContact, std::string_view, &PeerContact::Identity>,
                                    std::hash<std::string_view>>,
                                mi::ranked_non_unique<mi::identity<PeerContact>, PeerOrder>>>;

// Both behind the same four words.
struct Peer {
  void Build(const std::vector<ZEIntDict>& fetched, int contacts) {
    index.get<0>().reserve(static_cast<std::size_t>(contacts));
    for (int i = 0; i < contacts; ++i) {
      const ZEIntDict& values = fetched[static_cast<std::size_t>(i)];
      if (index.get<0>().count(values.find(Contact::P_IDENTITY).view()) != 0) continue;
      PeerContact contact;
      for (std::size_t field = 0; field < contact.fields.size(); ++field) {
        contact.fields[field] = values.find(zelhost::kContactRecord[field]);
      }
      contact.category = zelhost::MeaningOf(contact.fields[3].toInt()).category;
      index.insert(std::move(contact));
    }
  }
  void ReadPage(int start) {
    text.clear();
    const auto& order = index.get<1>();
    auto contact = order.nth(static_cast<std::size_t>(start));
    for (int i = 0; i < kPage && contact != order.end(); ++i, ++contact) {
      for (const ZEString& field : contact->fields) text.append(field.view()).append(zelto::kFieldSeparator);
    }
  }
  void Change(std::string_view identity, const ZEString& online, const ZEString& away) {
    auto& contacts = index.get<0>();
    contacts.modify(contacts.find(identity), [&](PeerContact& contact) {
      contact.fields[3] = contact.category == CContactInfo::SORT_AWAY ? online : away;
      contact.category = zelhost::MeaningOf(contact.fields[3].toInt()).category;
    });
  }
  PeerIndex index;
  std::string text;
};

struct Ours {
  void Build(const std::vector<ZEIntDict>& fetched, int contacts) {
    for (int i = 0; i < contacts; ++i) {
      const ZEIntDict& values = fetched[static_cast<std::size_t>(i)];
      if (list.Find(values.find(Contact::P_IDENTITY).view()) != nullptr) continue;
      auto entry = std::make_unique<CContactInfo>();
      for (const int property : zelhost::kContactRecord) entry->Set(property, values.find(property));
      entry->SetCategory(CContactInfo::SetSortCategory(entry->Get(Contact::P_AVAILABILITY).toInt()));
      list.Append(std::move(entry));
    }
    list.Sort();
  }
  void ReadPage(int start) {
    page.clear();
    list.VisitFrom(start, [&](const CContactInfo* entry, int) {
      page.push_back(entry);
      return page.size() < kPage;
    });
    WriteContactRecords(page, text);
  }
  void Change(std::string_view identity, const ZEString& online, const ZEString& away) {
    const CContactInfo* entry = list.Find(identity);
    list.Set(entry, Contact::P_AVAILABILITY, entry->Category() == CContactInfo::SORT_AWAY ? online : away);
    list.SetCategory(entry, CContactInfo::SetSortCategory(entry->Get(Contact::P_AVAILABILITY).toInt()));
    list.Place(entry);
  }
  ContactList list;
  std::vector<const CContactInfo*> page;
  std::string text;
};

template <class List>
void Build(benchmark::State& state, int contacts) {
  const std::vector<ZEIntDict>& fetched = Fetched(contacts);
  for (auto _ : state) {
    auto list = std::make_unique<List>();
    const auto start = Clock::now();
    list->Build(fetched, contacts);
    state.SetIterationTime(Seconds(Clock::now() - start).count());
  }
  state.SetItemsProcessed(state.iterations() * contacts);
}

template <class List>
void ReadPage(benchmark::State& state, int contacts) {
  List list;
  list.Build(Fetched(contacts), contacts);
  for (auto _ : state) {
    list.ReadPage(contacts / 2);
    benchmark::DoNotOptimize(list.text.data());
  }
}

// Each change moves the contact from one category to another.
template <class List>
void Change(benchmark::State& state, int contacts) {
  const std::vector<ZEIntDict>& fetched = Fetched(contacts);
  List list;
  list.Build(fetched, contacts);
  const ZEString online("7");
  const ZEString away("9");
  std::mt19937 random(2);
  std::vector<std::string> identities(4096);
  for (std::string& identity : identities) {
    identity = fetched[random() % static_cast<unsigned>(contacts)].find(Contact::P_IDENTITY).view();
  }
  std::size_t next = 0;
  for (auto _ : state) {
    list.Change(identities[next], online, away);
    next = (next + 1) % identities.size();
  }
}

template <class List>
bool Register(const std::string& name) {
  for (const int contacts : {100, 1000, 10'000, 50'000}) {
    const std::string suffix = name + std::to_string(contacts);
    benchmark::RegisterBenchmark(("BuildContacts/" + suffix).c_str(), Build<List>, contacts)->UseManualTime();
    benchmark::RegisterBenchmark(("ContactPage/" + suffix).c_str(), ReadPage<List>, contacts);
    benchmark::RegisterBenchmark(("PresenceChange/" + suffix).c_str(), Change<List>, contacts);
  }
  return true;
}
[[maybe_unused]] const bool g_registered = Register<Ours>("zelto") && Register<Peer>("multi_index");

}  // namespace

BENCHMARK_MAIN();
