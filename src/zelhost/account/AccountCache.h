#pragma once

#include <map>
#include <string>
#include <utility>

// What is known of the signed-in account: profile values, capabilities, and server-side values that wait
// for the runtime's commit.
// Threads: none of its own; the account manager's callers hold the service-host mutex.
class AccountCache {
 public:
  struct Capability {
    std::string status;  // decimal text, empty while unknown
    int expiry = 0;      // seconds since the epoch, 0 for none
  };

  // Empty text for what is not known.
  const std::string& GetInfo(int property) { return m_AccountInfo[property]; }
  void SetInfo(int property, std::string value) { m_AccountInfo[property] = std::move(value); }

  const Capability& GetCapability(int capability) { return m_Capabilities[capability]; }
  // A capability that the account does not have keeps no expiry.
  void SetCapability(int capability, int status, int expiry);

  // A server-side value that was sent; it counts once CommitPending() is called.
  void SetPending(int property, std::string value) { m_PendingServerSideProps[property] = std::move(value); }
  void CommitPending();
  void DropPending() { m_PendingServerSideProps.clear(); }

  // Every listed property and capability becomes empty; pending values are dropped.
  void Reset();
  void ClearInfo() { m_AccountInfo.clear(); }

 private:
  std::map<int, std::string> m_AccountInfo;
  std::map<int, Capability> m_Capabilities;
  std::map<int, std::string> m_PendingServerSideProps;
};
