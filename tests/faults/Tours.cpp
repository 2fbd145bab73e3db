// The steps of the tours.
#include "tests/faults/Tour.h"

namespace test {

namespace {

// Engine events of a call.
constexpr int kInProgress = 263;
constexpr int kHeld = 264;
constexpr int kIncomingCall = 267;
constexpr int kMembersCleared = 280;
constexpr int kIncomingConference = 289;
constexpr int kRecording = 395;
constexpr int kMyVideoAvailable = 419;

}  // namespace

// clang-format off
const std::vector<TourStep> kSignInTour = {
    {"GetZeltoState",       {},                                        "1",                 0},
    {"SetMicVolume",        {"33"},                                    "1",                 0},
    {"GetMicVolume",        {},                                        "33",                0},
    {"SaveDBPan",           {"a \\ \"quoted\", text"},                 "1",                 0},
    {"GetDBPan",            {},                                        "a \\ \"quoted\", text", 0},
    {"IsValidEmail",        {"viewer@example.org"},                    "1",                 0},
    {"ValidatePasswd",      {kDemoName, "walrus77"},                   "1",                 0},
    {"Login",               {kDemoName, kDemoPassword, "1"},           "1",                 kLoggedIn},
    {"GetLoginState",       {},                                        nullptr,             kContactListInSync},
    {"GetAccountInfo",      {"1"},                                     kDemoName,           0},
    {"SetProp",             {"16", "under way"},                       "1",                 0},
    {"SetCallForwardNumbers", {"+3581234"},                            "1",                 kCommitted},
    {"SetCallForwardTimer", {"45"},                                    "1",                 0},
    {"GetCallForwardTimer", {},                                        "45",                0},
    {"SetAvailability",     {"5"},                                     "1",                 0},
    {"Logout",              {"1"},                                     "1",                 kLoggedOut},
};

const std::vector<TourStep> kCallTour = {
    {"Login",               {kDemoName, kDemoPassword, "1"},           "1",                 kLoggedIn},
    {"GetLoginState",       {},                                        nullptr,             kContactListInSync},
    {"GetContactListWithoutUnauthorizedContacts", {"0", "5"},          nullptr,             0},
    {"SetZeltoWidgetState", {"1"},                                     "1",                 0},
    {"CreateCall",          {"sndtest", "1"},                          "1",                 kInProgress},
    {nullptr,               {},                                        nullptr,             kMyVideoAvailable},
    {"GetCallInfo",         {},                                        nullptr,             0},
    {"Hold",                {"1"},                                     "1",                 kHeld},
    {"Hold",                {"0"},                                     "1",                 kInProgress},
    {"SendDTMF",            {"1"},                                     "1",                 0},
    {"StopSendVideo",       {},                                        "1",                 0},
    {"CallEnd",             {"0"},                                     "1",                 kMembersCleared},
    {"UnblockIncomingCall", {"0"},                                     "1",                 0},
    {nullptr, {}, nullptr, kIncomingCall, R"({"order":"call","from":"maria","video":1})"},
    {"AnswerWithVideo",     {},                                        "1",                 kInProgress},
    {nullptr, {}, nullptr, kMembersCleared, R"({"order":"hangup"})"},
    {"UnblockIncomingCall", {"0"},                                     "1",                 0},
    {nullptr, {}, nullptr, kIncomingConference, R"({"order":"call","from":"maria","conference":1})"},
    {"AnswerWithVoice",     {},                                        "1",                 kInProgress},
    {"CallEnd",             {"0"},                                     "1",                 kMembersCleared},
    {"LeaveVoicemail",      {"maria"},                                 "1",                 kRecording},
    {"CallEnd",             {"0"},                                     "1",                 kMembersCleared},
    {"SetZeltoWidgetState", {"0"},                                     "1",                 0},
    {"Logout",              {"1"},                                     "1",                 kLoggedOut},
};

const std::vector<TourStep> kEchoTour = {
    {"Login",               {kDemoName, kDemoPassword, "1"},           "1",                 kLoggedIn},
    {"SetZeltoWidgetState", {"1"},                                     "1",                 0},
    {"CreateCall",          {"sndtest", "1"},                          "1",                 kInProgress},
    {nullptr,               {},                                        nullptr,             kMyVideoAvailable},
    {"GetCallInfo",         {},                                        nullptr,             0},
    {"Hold",                {"1"},                                     "1",                 kHeld},
    {"Hold",                {"0"},                                     "1",                 kInProgress},
    {"CallEnd",             {"0"},                                     "1",                 kMembersCleared},
    {"Logout",              {"1"},                                     "1",                 kLoggedOut},
};
// clang-format on

}  // namespace test
