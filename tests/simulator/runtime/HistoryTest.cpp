#include <string>
#include <vector>

#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/world/CallProperties.h"
#include "simulator/runtime/world/ContactProperties.h"
#include "simulator/runtime/world/VoicemailProperties.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::RuntimeFixture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NotingSound : public MediaPort {
 public:
  void BeginSound(FarSound) override { notes += " call"; }
  void PlayRecording(unsigned number) override { notes += " recording" + std::to_string(number); }
  void EndSound() override { notes += " silence"; }
  void ShowPicture(FarPicture) override {}
  int VoiceLevel() const override { return 0; }
  MediaCounts Counts() const override { return {}; }
  std::string notes;
};

struct WithSound {
  NotingSound sound;
};

class TheHistory : private WithSound, public RuntimeFixture {
 protected:
  TheHistory() : RuntimeFixture(&sound) { SignIn("demo", "demo1234"); }

  using WithSound::sound;

  json Order(const std::string& words) {
    const json answer = orders.Execute(Orders::FromWords(words));
    EXPECT_TRUE(answer["ok"].get<bool>()) << words << ": " << answer;
    return answer;
  }
  std::vector<Object*> ObjectsIn(const std::string& list) {
    std::vector<Object*> objects;
    for (const auto id : SplitList(list)) objects.push_back(session.world.Find(ToUnsigned(id)));
    return objects;
  }
  // The results of a search, which is then released.
  std::vector<Object*> Finished(const std::string& id, const ZEMethod& results, const ZEMethod& release,
                                int status) {
    Object* search = session.world.Find(ToUnsigned(id));
    if (search == nullptr) return {};
    EXPECT_EQ("", Result(results, On(*search), ZEKey::Objects)) << "before it is finished";
    Pass(50);
    EXPECT_EQ(status, search->GetInt(1));
    const std::string list =
        Result(results, On(*search) + Pair(ZEKey::From, "0") + Pair(ZEKey::Limit, "-1"), ZEKey::Objects);
    Tell(release, On(*search));
    EXPECT_EQ(nullptr, session.world.Find(ToUnsigned(id)));
    return ObjectsIn(list);
  }
  std::vector<Object*> Search(const ZEClass& type, const std::string& terms = {}, int status = 3) {
    const std::string pairs = Pair(ZEKey::Target, type.token) + Pair(ZEKey::Limit, "-1") + terms;
    return Finished(Result(RootMethod::SearchObjects, pairs), SearchMethod::GetResults, SearchMethod::Release,
                    status);
  }
  std::vector<std::string> People(const ZEMethod& method, const std::string& pairs, int status = 4) {
    std::vector<std::string> names;
    for (const Object* person :
         Finished(Result(method, pairs + Pair(ZEKey::SearchFlag, "0") + Pair(ZEKey::ResultLimit, "50")),
                  ContactSearchMethod::GetResults, ContactSearchMethod::Release, status)) {
      names.push_back(person->GetText(contact::kIdentity));
    }
    return names;
  }
  static std::string Term(const char* property, const char* condition, const std::string& value) {
    return std::string(ZEKey::SearchTerm) + "=\"" + property + "," + condition + "," + value + "\" ";
  }
  std::vector<std::string> PeopleBy(const std::string& text) {
    return People(RootMethod::NewBasicSearch, Pair(ZEKey::Text, text));
  }
  unsigned Call(const std::string& identity) {
    const std::string call = Result(RootMethod::CreateCall);
    Result(CallMethod::Ring, Pair(ZEKey::ObjectId, call) + Pair(ZEKey::Identity, identity));
    return ToUnsigned(call);
  }

  Wire wire{false};
  Controls controls{wire, faults, &session};
  Orders orders{controls};
};

TEST_F(TheHistory, KeepsEveryCallThatHasEnded) {
  Call("hangup3");
  Pass(6000);
  Order("call from=anna milliseconds=1000");
  const unsigned live = session.calls.Current()->Id();
  Pass(2000);
  const std::vector<Object*> calls = Search(CALL_CLASS);
  ASSERT_EQ(2u, calls.size());
  const Object& missed = calls[0]->GetInt(call::kIncoming) != 0 ? *calls[0] : *calls[1];
  const Object& made = &missed == calls[0] ? *calls[1] : *calls[0];
  EXPECT_NE(live, missed.id);
  EXPECT_EQ(1, missed.GetInt(call::kUnseen));
  EXPECT_EQ("hangup3", made.GetText(call::kPartner));
  EXPECT_EQ(3, made.GetInt(call::kDuration) + 1) << "three seconds but for the last";
  const std::vector<Object*> members = ObjectsIn(Result(CallMethod::GetMembers, On(missed)));
  ASSERT_EQ(1u, members.size());
  EXPECT_EQ("Anna", members[0]->GetText(member::kDisplayName));
  EXPECT_EQ(member::kMissed, members[0]->GetInt(member::kStatus));
  EXPECT_EQ(std::to_string(missed.id), Result(RootMethod::GetUnseenMissedCalls));

  // Seen by the object that it had while it lived, and still so after a sudden death.
  Tell(CallMethod::MarkSeen, Pair(ZEKey::ObjectId, std::to_string(live)));
  EXPECT_EQ(0, missed.GetInt(call::kUnseen));
  Pass(4000);
  EXPECT_EQ(nullptr, session.world.Find(live));
  Tell(CallMethod::Delete, On(made));
  SimulatedService again(DeviceStore::DataFolder(device.Folder()));
  const std::vector<CallRecord> kept = again.PastCalls("demo");
  ASSERT_EQ(1u, kept.size());
  EXPECT_FALSE(kept[0].unseen);
  ASSERT_EQ(1u, kept[0].parties.size());
  EXPECT_EQ("anna", kept[0].parties[0].identity);

  // A call that the end of the session ends is kept, too.
  Call("anna");
  session.signIn.Drop(LogoutReason::Requested);
  EXPECT_EQ(2u, again.PastCalls("demo").size());
}

TEST_F(TheHistory, PlaysVoicemails) {
  outbox.texts.clear();
  const unsigned id = Order("voicemail from=maria seconds=2")["object"].get<unsigned>();
  EXPECT_THAT(Words(), ElementsAre("event Voicemail.IncomingVoicemail object=" + std::to_string(id)));
  Object& voicemail = *session.world.Find(id);
  EXPECT_THAT(Search(VOICEMAIL_CLASS), ElementsAre(&voicemail));
  EXPECT_EQ(voicemail::kNew, voicemail.GetInt(voicemail::kStatus));
  outbox.texts.clear();
  EXPECT_EQ("1", Result(VoicemailMethod::StartPlayback, On(voicemail)));
  Pass(3000);
  const std::string begin = "event Voicemail.PropertyChange object=" + std::to_string(id) + " property=";
  const std::vector<std::string> words = Words();
  EXPECT_EQ(" recording1 silence", sound.notes);
  EXPECT_THAT(
      std::vector<std::string>(words.begin() + 2, words.end()),
      ElementsAre(begin + "4 value=5", begin + "10 value=1", begin + "10 value=2", begin + "4 value=6"));
  // Heard and deleted after a sudden death.
  SimulatedService again(DeviceStore::DataFolder(device.Folder()));
  EXPECT_EQ(voicemail::kHeard, again.Voicemails("demo").at(0).status);

  // A call takes the sound, and there is no playing beside it.
  Object& other = *session.world.Find(Order("voicemail from=anna")["object"].get<unsigned>());
  sound.notes.clear();
  EXPECT_EQ("1", Result(VoicemailMethod::StartPlayback, On(other)));
  Pass(500);
  Call("hangup3");
  Pass(2000);
  EXPECT_EQ(" recording2 call", sound.notes);
  EXPECT_EQ(voicemail::kHeard, other.GetInt(voicemail::kStatus));
  EXPECT_EQ("0", Result(VoicemailMethod::StartPlayback, On(voicemail)));
  Pass(4000);
  EXPECT_EQ("1", Result(VoicemailMethod::StartPlayback, On(voicemail)));
  Pass(500);
  sound.notes.clear();
  Tell(VoicemailMethod::Delete, On(voicemail));
  EXPECT_EQ(" silence", sound.notes);
  EXPECT_EQ(1u, again.Voicemails("demo").size());
  Order("delete " + std::to_string(other.id));
  EXPECT_THAT(again.Voicemails("demo"), IsEmpty());
}

TEST_F(TheHistory, FindsWhatTheTermsOfASearchDescribe) {
  Order("history 10000");
  EXPECT_EQ(9000u, Search(CALL_CLASS).size());
  EXPECT_EQ(1000u, Search(VOICEMAIL_CLASS).size());
  EXPECT_EQ(3u, Search(CALL_CLASS, Term("1725", "1187", "1")).size()) << "the unseen ones";
  EXPECT_EQ(1u, Search(VOICEMAIL_CLASS, Term("1532", "1187", "1534")).size()) << "enumerators as tokens";
  // Or durations of 19 seconds, which come again after 600 calls.
  const std::string orElse = Pair(ZEKey::SearchTerm, "1448");
  EXPECT_EQ(3u + 15u,
            Search(CALL_CLASS, Term("1725", "1187", "1") + orElse + Term("1801", "1187", "19")).size());
  for (const std::string& bad : {Term("1725", "9999", "1"), Term("9999", "1187", "1"),
                                 std::string("1711=\"\" "), std::string("1711=\"1725,1187\" ")}) {
    EXPECT_THAT(Search(CALL_CLASS, bad, 4), IsEmpty()) << bad;
  }
  EXPECT_THAT(Search(TRANSFER_CLASS), IsEmpty());
  // Whoever never releases a search loses the oldest.
  const std::string pairs = Pair(ZEKey::Target, CHAT_CLASS.token) + Pair(ZEKey::Limit, "0");
  const unsigned first = ToUnsigned(Result(RootMethod::SearchObjects, pairs));
  for (std::size_t i = 0; i < kMostSearches; ++i) Result(RootMethod::SearchObjects, pairs);
  EXPECT_EQ(nullptr, session.world.Find(first));
}

TEST_F(TheHistory, OfOthersIsADirectoryToLookPeopleUpIn) {
  EXPECT_THAT(PeopleBy("maria"), ElementsAre("maria"));
  EXPECT_THAT(PeopleBy("SAMP"), ElementsAre("maria")) << "the beginning of a word";
  EXPECT_THAT(PeopleBy("anna@example.org"), ElementsAre("anna"));
  EXPECT_THAT(PeopleBy("demo"), IsEmpty()) << "nobody looks for himself";
  EXPECT_THAT(PeopleBy("zzz"), IsEmpty());
  EXPECT_THAT(People(RootMethod::NewBasicSearch, Pair(ZEKey::Text, " "), 5), IsEmpty());
  const auto identity = [&](const char* name) {
    return People(RootMethod::NewIdentitySearch, Pair(ZEKey::Identity, name));
  };
  EXPECT_THAT(identity(" Emi.K"), ElementsAre("emi.k"));
  EXPECT_THAT(identity("busy"), ElementsAre("busy"));
  EXPECT_THAT(identity("nobody.at.all"), IsEmpty());
  const Object& found = *session.contacts.Find("emi.k");
  EXPECT_EQ("jp", found.GetText(8));
  EXPECT_EQ("ja", found.GetText(7));
  EXPECT_THAT(People(RootMethod::NewSearch, Term("1722", "1187", "pt") + Term("2095", "1126", "Lis")),
              ElementsAre("ines"));
  EXPECT_THAT(People(RootMethod::NewSearch, Term("1405", "1738", "sample\\, maria"), 4), IsEmpty());

  // Results are told one by one before the end.
  outbox.texts.clear();
  PeopleBy("maria");
  const std::vector<std::string> words = Words();
  const auto result = std::find_if(words.begin(), words.end(), [](const std::string& line) {
    return line.find("NewSearchResult") != std::string::npos;
  });
  ASSERT_NE(words.end(), result);
  EXPECT_NE(std::string::npos, std::next(result)->find("property=1 value=4"));

  // The other side's answer to a request.
  Object& greta = *session.contacts.Find("greta");
  Result(ContactMethod::SendAuthRequest, On(greta) + Pair(ZEKey::Message, "Hello~"));
  EXPECT_EQ("Hello~", Order("authanswer from=greta answer=no")["asked"]);
  EXPECT_EQ("0", Result(ContactMethod::HasAuthorizedMe, On(greta)));
  EXPECT_TRUE(session.contacts.Groups().IsMember(*session.contacts.Groups().Hardwired(6), greta.id));
  Order("authanswer from=greta answer=yes");
  EXPECT_FALSE(session.contacts.Groups().IsMember(*session.contacts.Groups().Hardwired(6), greta.id));
}

}  // namespace
}  // namespace simulator
