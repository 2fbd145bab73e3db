#include <algorithm>

#include "tests/apiwrapper/AllCalls.h"

namespace {

std::vector<const ZEMethod*> rowsOfAllCalls() {
  // Properties and search terms have keys of their own; starting and stopping belong to the root's own work.
  const std::vector<const ZEMethod*> others = {&AccountMethod::SetProps,   &AccountMethod::SetServersideProps,
                                               &RootMethod::Start,         &RootMethod::Stop,
                                               &RootMethod::SearchObjects, &RootMethod::NewSearch};
  std::vector<const ZEMethod*> rows(std::begin(CLASS_METHODS), std::end(CLASS_METHODS));
  rows.insert(rows.end(), std::begin(ROOT_METHODS), std::end(ROOT_METHODS));
  const auto isOther = [&](const ZEMethod* row) {
    return row->owner == nullptr || std::find(others.begin(), others.end(), row) != others.end();
  };
  rows.erase(std::remove_if(rows.begin(), rows.end(), isOther), rows.end());
  return rows;
}

// What AllCalls.h passes in that place, as the runtime reads it; empty for the ids of some proxies.
std::string argumentAt(unsigned int place, const ZEField& field) {
  switch (field.kind) {
    case ZEKind::Text:
    case ZEKind::Binary:
      return "text" + std::to_string(place);
    case ZEKind::Flag:
      return place % 2 == 0 ? "1" : "0";
    case ZEKind::Number:
      return std::to_string(place);
    case ZEKind::Token:
      return ZEProtocol::TokenOf(field.table, 1);
    case ZEKind::Texts:
      return "a,b";
    case ZEKind::Object:
    case ZEKind::Objects:
      break;
  }
  return "";
}

void expectRequest(const ZEMethod& row, const Proxies& proxies) {
  SCOPED_TRACE(row.name);
  ZEStringList tokens = ZEStringList::split(proxies.written().c_str(), ' ', '\\');
  EXPECT_TRUE(row.call == ZECall::Either || proxies.waited() == (row.call == ZECall::Reply));
  EXPECT_EQ(tokens.peek(), "a");
  EXPECT_EQ(tokens.peek(), row.owner->token);
  EXPECT_EQ(tokens.peek(), row.token);
  const ZEStringDict pairs = ZEStringDict::parse(tokens);
  unsigned int expected = 0;
  for (; expected < kMaxMethodArguments && row.arguments[expected].key != nullptr; ++expected) {
    const ZEString value = pairs.find(row.arguments[expected].key);
    const std::string argument = argumentAt(expected, row.arguments[expected]);
    if (argument.empty()) {
      EXPECT_GE(value.toUInt(), 5U) << "the id of a proxy";
    } else {
      EXPECT_EQ(std::string(value), argument);
    }
  }
  if (row.target == ZETarget::Object) {
    ++expected;
    EXPECT_GE(pairs.find("1137").toUInt(), 5U);
  }
  EXPECT_EQ(pairs.size(), expected);
}

TEST_F(WithProxies, EveryMethodSendsItsRow) {
  const std::vector<const ZEMethod*> rows = rowsOfAllCalls();
  ASSERT_EQ(rows.size(), std::size(ALL_CALLS));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t before = transport.written.size();
    ALL_CALLS[i](*this);
    ASSERT_EQ(transport.written.size(), before + 1) << rows[i]->name;
    expectRequest(*rows[i], *this);
  }
}

TEST_F(WithProxies, EveryMethodSurvivesAStreamThatEnds) {
  transport.onPush = nullptr;
  const std::vector<const ZEMethod*> rows = rowsOfAllCalls();
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_TRUE(ALL_CALLS[i](*this)) << rows[i]->name;
}

struct Request {
  void (*make)(Proxies& p);
  const char* text;
};

ZEPtrVector g_found;

constexpr Request REQUESTS[] = {
    {[](Proxies& p) { p.account.LoginWithPassword("se\"cret", true); },
     R"(a 2046 1805 1046="1" 2006="se\"cret" 1137="5" 1105="1")"},
    {[](Proxies& p) { p.account.SubmitUICRequestResponse(ZEString::from("A\0", 2)); },
     R"(a 2046 1354 1188="A\0" 1137="5")"},
    {[](Proxies& p) { p.account.SetServersideProp(Account::P_CHAT_POLICY, "2"); },
     R"(a 2046 1117 1137="5" 1408="1392")"},
    {[](Proxies& p) { p.alert.MarkSeen(); }, R"(a 1131 1611 1137="6")"},
    {[](Proxies& p) { p.call.End(CallMember::HANG_UP); }, R"(a 1133 1163 1137="7" 1391="1849")"},
    {[](Proxies& p) { p.callMember.End(CallMember::REDIRECT_TO_VOICEMAIL); },
     R"(a 1988 1163 1137="8" 1391="2043")"},
    {[](Proxies& p) { p.chat.Say("hello", false); }, R"(a 1764 1718 1343="0" 1137="9" 1837="hello")"},
    {[](Proxies& p) {
       p.chat.AddMembers(textsOf({"a,b", "c"}));
     },
     R"(a 1764 1466 1137="9" 1063="a\\\,b\,c")"},
    {[](Proxies& p) {
       p.chat.PostContacts(objectsOf({&p.contact, nullptr, p.root.getContact(120)}));
     },
     R"(a 1764 1671 1137="9" 1271="12\,120")"},
    {[](Proxies& p) { p.chatMember.SetRoleTo(ChatMember::ROLE(2)); }, R"(a 2085 1526 1531="2061" 1137="10")"},
    {[](Proxies& p) { p.chatMessage.Edit("new", true); }, R"(a 1459 1535 1343="1" 1786="new" 1137="11")"},
    {[](Proxies& p) { p.contact.SetPhoneNumber(2, "Home", "+44 1"); },
     R"(a 1799 1811 1301="2" 1137="12" 1197="+44 1" 1880="Home")"},
    {[](Proxies& p) { p.contactGroup.AddContact(nullptr); }, R"(a 1221 1308 1137="13" 1396="0")"},
    {[](Proxies& p) { p.contactSearch.GetResults(0, -1, g_found); },
     R"(a 2036 2077 1137="14" 1617="0" 2074="-1")"},
    {[](Proxies& p) { p.priceQuote.Accept(); }, R"(a 1826 1539 1137="15")"},
    {[](Proxies& p) { p.search.Release(); }, R"(a 1305 2005 1137="16")"},
    {[](Proxies& p) {
       p.sms.SetTargets(textsOf({"+1", "+2"}));
     },
     R"(a 1609 1871 1137="17" 1106="+1\,+2")"},
    {[](Proxies& p) { p.sms.SetConfirmationType(Sms::CONFIRMTYPE(0)); },
     R"(a 1609 1439 1137="17" 1085="2047")"},
    {[](Proxies& p) { p.transfer.Accept("/tmp/x"); }, R"(a 1974 1539 1058="/tmp/x" 1137="18")"},
    {[](Proxies& p) { p.video.SetScreen(1, "160 0 640 480"); },
     R"(a 1311 1353 1698="1" 1137="19" 1425="160 0 640 480")"},
    {[](Proxies& p) { p.voicemail.ForwardToContacts(objectsOf({&p.contact})); },
     R"(a 1684 1747 1137="20" 1271="12")"},
    {[](Proxies& p) { p.app2App.Write("s1", ZEString::from("x\0", 2)); },
     R"(a 2097 1378 1768="x\0" 1608="text0" 1341="s1")"},
    {[](Proxies& p) { p.root.SetInt("*UI/x", -3); }, R"(a 1165 1549 1887="*UI/x" 1667="-3")"},
    {[](Proxies& p) { p.root.GetSuggestedZeltoname(ZEString()); }, R"(a 2046 1920 1788="")"},
    {[](Proxies& p) { p.root.IssuePriceQuote("s", PriceQuote::TYPE(2), "a", "b", "c", "d", "e"); },
     R"(a 1826 1914 1355="c" 1104="d" 1821="b" 1859="s" 1085="1205" 1120="a" 1660="e")"},
};

TEST_F(WithProxies, RequestsAreWrittenByteForByte) {
  for (const Request& request : REQUESTS) {
    request.make(*this);
    EXPECT_EQ(written(), request.text);
  }
}

TEST_F(WithProxies, PropertiesAreSetTogetherAndOnlyWhenThereAreAny) {
  ZEIntDict values;
  values.insert(Account::P_MOOD_TEXT, "hi, you");
  values.insert(Account::P_AVAILABILITY, "4");
  values.insert(99, "no such property");
  results = "0=\"1\"";
  EXPECT_TRUE(account.SetProps(values));
  EXPECT_EQ(written(), R"(a 2046 2032 1423="hi\, you" 1137="5" 1842="1385")");
  results = "";
  EXPECT_FALSE(account.SetProps(values));
  const std::size_t before = transport.written.size();
  EXPECT_TRUE(account.SetProps({}));
  account.SetServersideProps({});
  EXPECT_EQ(transport.written.size(), before);
}

TEST_F(WithProxies, CommandsWaitOnlyWhenToldTo) {
  results = "0=\"ok\"";
  EXPECT_EQ(root.VoiceCommand("x", true), "ok");
  EXPECT_TRUE(waited());
  EXPECT_EQ(root.VideoCommand("x", false), ZEString());
  EXPECT_FALSE(waited());
}

TEST_F(WithProxies, SearchesCarryTheirTermsInOrder) {
  SearchTerm term(Search::CALLS);
  term.add(Call::P_MIKESTATUS, static_cast<Search::CONDITION>(1), 2);
  term.add(Call::P_START_TIME, static_cast<Search::CONDITION>(2), -5);
  term.add(Call::P_PARTNER_IDENTITY, static_cast<Search::CONDITION>(10), "a,b");
  results = "0=\"16\"";
  EXPECT_EQ(root.SearchObjects(term, -1), &search);
  EXPECT_EQ(written(), R"(a 1305 1864 1216="1133" 2074="-1" 1711="1333,1187,1612" 1711="1577,1015,-5")"
                       R"( 1711="1064,1247,a\,b")");
  SearchTerm unknown(static_cast<Search::TARGET>(11));
  unknown.add(1, static_cast<Search::CONDITION>(99), 3);
  root.SearchObjects(unknown, 5);
  EXPECT_EQ(written(), R"(a 1305 1864 1216="" 2074="5" 1711=",,3")");

  using Field = ContactSearch::CONTACTFIELDS;
  ContactSearchTerm people;
  people.addOr();
  people.addTerm(Field(1), static_cast<ContactSearch::CONDITION>(1), "a\"b");
  people.addOr();
  people.addTerm(Field(13), static_cast<ContactSearch::CONDITION>(10), "c");
  results = "0=\"14\"";
  EXPECT_EQ(root.NewSearch(people, false, 50), &contactSearch);
  EXPECT_EQ(written(),
            R"(a 2036 1183 1777="50" 1605="0" 1711="1704,1187,a\"b" 1711="1448" 1711="1441,1247,c")");
}

}  // namespace
