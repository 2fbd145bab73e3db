#include "tests/apiwrapper/AllCalls.h"

namespace {

// What the calls of AllCalls.h pass in that place, as the runtime reads it.
std::string argumentAt(unsigned int place, const ZEField& field) {
  const std::string number = std::to_string(place);
  switch (field.kind) {
    case ZEKind::Text:
      return field.key == ZEKey::App2AppName ? "app" : "text" + number;
    case ZEKind::Flag:
      return place % 2 == 0 ? "1" : "0";
    case ZEKind::Number:
      return number;
    case ZEKind::Token:
      return ZEProtocol::TokenOf(field.table, 1);
    case ZEKind::Texts:
      return "a,b";
    case ZEKind::Binary:
      return "0,";
    case ZEKind::Object:
    case ZEKind::Objects:
      break;
  }
  return "";
}

void expectArgument(const ZEMethod& row, unsigned int place, const ZEString& value) {
  SCOPED_TRACE(std::string(row.name) + " " + std::to_string(place));
  const ZEField& field = row.arguments[place];
  const std::string expected = argumentAt(place, field);
  if (expected.empty()) {
    EXPECT_GE(value.toUInt(), 5U) << "the id of a proxy";
  } else if (field.kind == ZEKind::Number) {
    EXPECT_THAT(std::string(value), testing::AnyOf(expected, '-' + expected));
  } else {
    EXPECT_EQ(std::string(value), expected);
  }
}

void expectRequest(const ZEMethod& row, const Proxies& proxies) {
  ZEStringList tokens = ZEStringList::split(proxies.written().c_str(), ' ', '\\');
  EXPECT_EQ(proxies.waited(), row.call != ZECall::OneWay) << row.name;
  EXPECT_EQ(tokens.peek(), "a");
  EXPECT_EQ(tokens.peek(), row.owner->token) << row.name;
  EXPECT_EQ(tokens.peek(), row.token) << row.name;
  const ZEStringDict pairs = ZEStringDict::parse(tokens);
  unsigned int expected = 0;
  for (; expected < kMaxMethodArguments && row.arguments[expected].key != nullptr; ++expected) {
    expectArgument(row, expected, pairs.find(row.arguments[expected].key));
  }
  if (row.target == ZETarget::Object) {
    ++expected;
    EXPECT_GE(pairs.find("1137").toUInt(), 5U) << row.name;
  }
  EXPECT_EQ(pairs.size(), expected) << row.name;
}

TEST_F(WithProxies, EveryMethodSendsItsRow) {
  for (const MethodCall& each : ALL_CALLS) {
    Results out;
    const std::size_t before = transport.written.size();
    each.make(*this, out);
    ASSERT_EQ(transport.written.size(), before + 1) << each.row->name;
    expectRequest(*each.row, *this);
  }
}

TEST_F(WithProxies, EveryMethodSurvivesAStreamThatEnds) {
  transport.onPush = nullptr;
  for (const MethodCall& each : ALL_CALLS) {
    Results out;
    out.unsignedNumber = 1;
    each.make(*this, out);
    EXPECT_EQ(out.objects.size(), 0U) << each.row->name;
    EXPECT_TRUE(out.text.isNull()) << each.row->name;
  }
}

class Requests : public WithProxies {
 protected:
  void expectText(const std::string& text) const { EXPECT_EQ(written(), text); }
};

TEST_F(Requests, OfAnAccount) {
  account.Login();
  expectText("a 2046 1252 1137=\"5\"");
  account.LoginWithPassword("se\"cret", true);
  expectText("a 2046 1805 1046=\"1\" 2006=\"se\\\"cret\" 1137=\"5\" 1105=\"1\"");
  account.Register("pw", false, "a@b.c", true);
  expectText("a 2046 1703 1046=\"0\" 1475=\"1\" 1883=\"a@b.c\" 2006=\"pw\" 1137=\"5\"");
  account.Logout(true);
  expectText("a 2046 1911 1137=\"5\" 1338=\"1\"");
  account.SetAvailability(Account::AVAILABILITY_ONLINE);
  expectText("a 2046 1109 1137=\"5\" 1581=\"1242\"");
  account.SubmitUICRequestResponse(ZEString::from("A\0", 2));
  expectText("a 2046 1354 1188=\"A\\0\" 1137=\"5\"");
  int expiry = 0;
  account.GetCapabilityStatus(static_cast<Contact::CAPABILITY>(2), expiry);
  expectText("a 2046 1061 1159=\"1634\" 1137=\"5\"");
  EXPECT_EQ(transport.written.back().substr(0, 5), "#0  a");
}

TEST_F(Requests, ThatSetAccountProperties) {
  ZEIntDict values;
  values.insert(Account::P_MOOD_TEXT, "hi, you");
  values.insert(Account::P_AVAILABILITY, "4");
  values.insert(99, "no such property");
  results = "0=\"1\"";
  EXPECT_TRUE(account.SetProps(values));
  expectText("a 2046 2032 1423=\"hi\\, you\" 1137=\"5\" 1842=\"1385\"");
  EXPECT_TRUE(account.SetProp(Account::P_AVATAR, ZEString::from("A\0", 2)));
  expectText("a 2046 2032 1137=\"5\" 1946=\"A\\0\"");
  account.SetServersideProp(Account::P_CHAT_POLICY, "2");
  expectText("a 2046 1117 1137=\"5\" 1408=\"1392\"");
  EXPECT_FALSE(waited());

  const std::size_t before = transport.written.size();
  EXPECT_TRUE(account.SetProps({}));
  account.SetServersideProps({});
  EXPECT_EQ(transport.written.size(), before) << "nothing to set, nothing to send";
  results = "";
  EXPECT_FALSE(account.SetProp(Account::P_MOOD_TEXT, "x"));
}

TEST_F(Requests, OfCallsAndMembers) {
  call.Ring("echo");
  expectText("a 1133 1033 1971=\"echo\" 1137=\"7\" 1086=\"0\"");
  call.End(CallMember::HANG_UP);
  expectText("a 1133 1163 1137=\"7\" 1391=\"1849\"");
  call.Assimilate(root.getCall(70));
  expectText("a 1133 2027 1137=\"7\" 1734=\"70\"");
  callMember.End(CallMember::REDIRECT_TO_VOICEMAIL);
  expectText("a 1988 1163 1137=\"8\" 1391=\"2043\"");
  callMember.Transfer("bob", "t");
  expectText("a 1988 1936 1016=\"bob\" 1137=\"8\" 1648=\"t\"");
  callMember.SetVoicemailOrigin("x");
  EXPECT_TRUE(waited()) << "though it answers nothing";
  video.SetScreen(1, "160 0 640 480");
  expectText("a 1311 1353 1698=\"1\" 1137=\"19\" 1425=\"160 0 640 480\"");
  voicemail.ForwardToContacts(objectsOf({&contact}));
  expectText("a 1684 1747 1137=\"20\" 1271=\"12\"");
}

TEST_F(Requests, OfChats) {
  chat.Say("hello", false);
  expectText("a 1764 1718 1343=\"0\" 1137=\"9\" 1837=\"hello\"");
  chat.AddMembers(textsOf({"a,b", "c"}));
  expectText("a 1764 1466 1137=\"9\" 1063=\"a\\\\\\,b\\,c\"");
  chat.PostContacts(objectsOf({&contact, nullptr, root.getContact(120)}));
  expectText("a 1764 1671 1137=\"9\" 1271=\"12\\,120\"");
  chat.Leave(static_cast<Chat::LEAVEREASON>(2));
  expectText("a 1764 1288 2028=\"1403\" 1137=\"9\"");
  chatMember.SetRoleTo(static_cast<ChatMember::ROLE>(2));
  expectText("a 2085 1526 1531=\"2061\" 1137=\"10\"");
  chatMessage.Edit("new", true);
  expectText("a 1459 1535 1343=\"1\" 1786=\"new\" 1137=\"11\"");
}

TEST_F(Requests, OfContactsAndGroups) {
  contact.SetPhoneNumber(2, "Home", "+44 1");
  expectText("a 1799 1811 1301=\"2\" 1137=\"12\" 1197=\"+44 1\" 1880=\"Home\"");
  contact.GiveAuthLevel(Contact::AUTH_BLOCKED);
  expectText("a 1799 1012 1137=\"12\" 1855=\"1269\"");
  contact.IsMemberOf(&contactGroup);
  expectText("a 1799 1649 1102=\"13\" 1137=\"12\"");
  contactGroup.AddContact(&contact);
  expectText("a 1221 1308 1137=\"13\" 1396=\"12\"");
  contactGroup.AddContact(nullptr);
  expectText("a 1221 1308 1137=\"13\" 1396=\"0\"");
  ZEPtrVector found;
  contactSearch.GetResults(0, -1, found);
  expectText("a 2036 2077 1137=\"14\" 1617=\"0\" 2074=\"-1\"");
}

TEST_F(Requests, OfTheOtherClasses) {
  alert.MarkSeen();
  expectText("a 1131 1611 1137=\"6\"");
  priceQuote.Accept();
  expectText("a 1826 1539 1137=\"15\"");
  search.Release();
  expectText("a 1305 2005 1137=\"16\"");
  sms.SetTargets(textsOf({"+1", "+2"}));
  expectText("a 1609 1871 1137=\"17\" 1106=\"+1\\,+2\"");
  sms.SetConfirmationType(static_cast<Sms::CONFIRMTYPE>(0));
  expectText("a 1609 1439 1137=\"17\" 1085=\"2047\"");
  transfer.Accept("/tmp/x");
  expectText("a 1974 1539 1058=\"/tmp/x\" 1137=\"18\"");
  app2App.Write("s1", ZEString::from("x\0", 2));
  expectText("a 2097 1378 1768=\"x\\0\" 1608=\"app\" 1341=\"s1\"");
}

TEST_F(Requests, OfTheService) {
  root.GetVersion();
  expectText("a 1465 1195");
  EXPECT_EQ(transport.written.back(), "#0  a 1465 1195");
  root.SetInt("*UI/x", -3);
  expectText("a 1165 1549 1887=\"*UI/x\" 1667=\"-3\"");
  EXPECT_FALSE(waited());
  root.StartRecordingTest();
  expectText("a 1885 1626");
  root.GetHardwiredContactGroup(ContactGroup::ALL_BUDDIES);
  expectText("a 1221 1538 1085=\"2067\"");
  root.PlayStart(3, ZEString::from("w", 1), true, false);
  expectText("a 1885 1749 1552=\"w\" 1816=\"3\" 1906=\"0\" 1066=\"1\"");
  root.GetSuggestedZeltoname(ZEString());
  expectText("a 2046 1920 1788=\"\"");
  root.IssuePriceQuote("s", static_cast<PriceQuote::TYPE>(2), "a", "b", "c", "d", "e");
  expectText("a 1826 1914 1355=\"c\" 1104=\"d\" 1821=\"b\" 1859=\"s\" 1085=\"1205\" 1120=\"a\" 1660=\"e\"");
}

TEST_F(Requests, ThatWaitOnlyWhenToldTo) {
  results = "0=\"ok\"";
  EXPECT_EQ(root.VoiceCommand("x", true), "ok");
  expectText("a 1885 1191 1980=\"x\"");
  EXPECT_TRUE(waited());
  EXPECT_EQ(root.VideoCommand("x", false), ZEString());
  expectText("a 1311 2042 1980=\"x\"");
  EXPECT_FALSE(waited());
}

TEST_F(Requests, ThatSearchTheRuntimesObjects) {
  SearchTerm term(Search::CALLS);
  term.add(Call::P_MIKESTATUS, static_cast<Search::CONDITION>(1), 2);
  term.add(Call::P_START_TIME, static_cast<Search::CONDITION>(2), -5);
  term.add(Call::P_PARTNER_IDENTITY, static_cast<Search::CONDITION>(10), "a,b");
  results = "0=\"16\"";
  EXPECT_EQ(root.SearchObjects(term, -1), &search);
  expectText(
      "a 1305 1864 1216=\"1133\" 2074=\"-1\""
      " 1711=\"1333,1187,1612\" 1711=\"1577,1015,-5\" 1711=\"1064,1247,a\\,b\"");

  SearchTerm unknown(static_cast<Search::TARGET>(11));
  unknown.add(1, static_cast<Search::CONDITION>(99), 3);
  root.SearchObjects(unknown, 5);
  expectText("a 1305 1864 1216=\"\" 2074=\"5\" 1711=\",,3\"");
}

TEST_F(Requests, ThatSearchTheDirectory) {
  ContactSearchTerm term;
  term.addOr();
  term.addTerm(static_cast<ContactSearch::CONTACTFIELDS>(1), static_cast<ContactSearch::CONDITION>(1),
               "a\"b");
  term.addOr();
  term.addTerm(static_cast<ContactSearch::CONTACTFIELDS>(13), static_cast<ContactSearch::CONDITION>(10), "c");
  results = "0=\"14\"";
  EXPECT_EQ(root.NewSearch(term, false, 50), &contactSearch);
  expectText(
      "a 2036 1183 1777=\"50\" 1605=\"0\" 1711=\"1704,1187,a\\\"b\" 1711=\"1448\" 1711=\"1441,1247,c\"");
  root.NewBasicSearch("x", false, 50);
  expectText("a 2036 1303 1777=\"50\" 1605=\"0\" 1837=\"x\"");
}

}  // namespace
