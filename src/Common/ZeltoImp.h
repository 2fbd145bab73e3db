#pragma once

class CAccountManagerImp;
class CCallManagerImp;
class CChatManagerImp;
class CContactManagerImp;
class CHistoryManagerImp;
class CZeltoManagerImp;

// Chooses the implementing classes behind the engine manager and the facades.
// Each factory answers the singleton of its class, created when there is none; deleting it (through its
// virtual destructor) makes room for the next one.
// Threads: creation is up to the callers, who hold the service-host mutex.
class CZeltoImp {
 public:
  static CZeltoManagerImp* CreateZeltoManagerImp();
  static CAccountManagerImp* CreateAccountManagerImp();
  static CContactManagerImp* CreateContactManagerImp();
  static CCallManagerImp* CreateCallManagerImp();
  static CHistoryManagerImp* CreateHistoryManagerImp();
  static CChatManagerImp* CreateChatManagerImp();
};
