#include "simulator/runtime/world/PresenceChanges.h"

#include <algorithm>
#include <iterator>

#include "simulator/runtime/Log.h"
#include "simulator/runtime/service/Database.h"
#include "simulator/runtime/world/ContactProperties.h"
#include "simulator/runtime/world/MagicNames.h"

namespace simulator {
namespace {

constexpr int kCourse[] = {contact::kOnline, contact::kAway, contact::kBusy, contact::kOffline};

int After(int presence) {
  const auto found = std::find(std::begin(kCourse), std::end(kCourse), presence);
  return found == std::end(kCourse) || std::next(found) == std::end(kCourse) ? kCourse[0] : *std::next(found);
}

}  // namespace

void PresenceChanges::Every(int milliseconds) {
  m_scheduler.Cancel(m_pending);
  m_milliseconds = milliseconds;
  if (milliseconds > 0) Schedule();
}

void PresenceChanges::Schedule() {
  m_pending = m_scheduler.After(m_milliseconds, [this] {
    try {
      ChangeNext();
    } catch (const DatabaseError& failure) {
      Log(failure.what());
    }
    Schedule();
  });
}

void PresenceChanges::ChangeNext() {
  const Object* group = m_contacts.Groups().Hardwired(group::kAccounts);
  if (group == nullptr) return;
  std::vector<unsigned> people = m_contacts.Groups().Members(*group);
  std::rotate(people.begin(), std::upper_bound(people.begin(), people.end(), m_last), people.end());
  for (const unsigned id : people) {
    Object* contact = m_world.Find(id);
    if (contact == nullptr || IsMagicName(Contacts::IdentityOf(*contact))) continue;
    m_last = id;
    m_contacts.SetPresence(*contact, After(contact->GetInt(contact::kPresence)));
    return;
  }
}

}  // namespace simulator
