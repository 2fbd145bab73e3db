// What one connected engine works with, from its connection to its end.
#pragma once

#include <csignal>
#include <cstdint>
#include <functional>

#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/service/DeviceStore.h"
#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/Calls.h"
#include "simulator/runtime/world/Chats.h"
#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/PastCalls.h"
#include "simulator/runtime/world/PresenceChanges.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/Searches.h"
#include "simulator/runtime/world/ServerCommit.h"
#include "simulator/runtime/world/SignIn.h"
#include "simulator/runtime/world/Voicemails.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// What outlives a connection. The references must outlive the session.
struct Surroundings {
  Service& service;
  DeviceStore& device;
  Outbox& outbox;
  std::int64_t clockDifference = 0;    // seconds that the television's clock is ahead
  std::function<void()> started = {};  // the engine has made a successful start
  std::function<void()> stopped = {};  // the engine has asked the runtime to stop
  MediaPort* media = nullptr;          // none: calls without sound and pictures
  // What a call to "crash" or "hang" does: the process gets that signal.
  std::function<void(int signal)> strike = [](int signal) { std::raise(signal); };
};

// The parts in the order in which they need one another. Whoever drives the session moves its scheduler on.
// Threads: none of its own.
struct Session {
  explicit Session(Surroundings with)
      : surroundings(std::move(with)),
        service(surroundings.service),
        device(surroundings.device),
        world(surroundings.outbox),
        contacts(world, service),
        presence(world, contacts, scheduler),
        signIn(world, contacts, service, device, scheduler),
        commit(world, signIn, service, scheduler),
        calls({world, contacts, scheduler, surroundings.outbox, surroundings.media,
               surroundings.clockDifference, surroundings.strike},
              [this] { return !signIn.Name().empty(); }),
        chats(world, contacts, service, scheduler, signIn, surroundings.clockDifference),
        pastCalls(world, contacts, service, signIn),
        voicemails({world, contacts, service, scheduler, signIn, surroundings.media,
                    surroundings.clockDifference,
                    [this] {
                      const CallCourse* course = calls.Current();
                      return course != nullptr && course->Sounds();
                    }}),
        searches(world, scheduler) {
    calls.WhenOver([this](const CallCourse& course) { pastCalls.Keep(course); });
    signIn.WhenOver([this] {
      calls.EndAll();
      voicemails.StopPlaying();
    });
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Surroundings surroundings;
  Service& service;
  DeviceStore& device;
  Scheduler scheduler;
  World world;
  Contacts contacts;
  PresenceChanges presence;
  SignIn signIn;
  ServerCommit commit;
  Calls calls;
  Chats chats;
  PastCalls pastCalls;
  Voicemails voicemails;
  Searches searches;
  bool started = false;
};

}  // namespace simulator
