#include "dial/DialHelper.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string Text(const ZEString& text) { return text.isNull() ? "(null)" : std::string(text.view()); }

std::string Pstn(DialHelper& from, const std::string& number) {
  return Text(from.getPSTNDialString(number.c_str()).join(",", false));
}

std::string Out(const char* country, const char* area, const char* number) {
  return Text(DialHelper(country, area).getZeltoOutDialString(number));
}

// Country code, area code ("-" for none), what is typed, the call through the service, the telephone's list.
constexpr char kNumbers[] = R"(
  93 20 2301234 +93202301234 0202301234             355 4 2234567 +35542234567 042234567
  213 - 021123456 +21321123456 021123456            376 - 712345 +376712345 712345
  244 - 222123456 +244222123456 222123456           374 10 271234 +37410271234 010271234
  61 2 93744000 +61293744000 0293744000             43 - 0158801123 +43158801123 0158801123
  994 12 4981234 +994124981234 0124981234           973 - 17123456 +97317123456 17123456
  375 - 8171234567 +375171234567 8171234567         32 - 025551234 +3225551234 025551234
  359 02 9871234 +35929871234 029871234             55 2111 33334444 +551133334444 33334444
  855 - 023123456 +85523123456 023123456            56 17132 2123456 +56322123456 2123456
  86 10 65321234 +861065321234 01065321234          57 1 2345678 +5712345678 0912345678
  385 - 014812345 +38514812345 014812345            53 7 8321234 +5378321234 078321234
  357 - 22123456 +35722123456 22123456              420 - 212345678 +420212345678 212345678
  45 - 32123456 +4532123456 32123456                593 2 2345678 +59322345678 022345678
  20 - 0227951234 +20227951234 0227951234           372 - 6271234 +3726271234 6271234
  358 - 0912345678 +358912345678 0912345678         33 - 0142681234 +33142681234 0142681234
  995 - 8322123456 +995322123456 8322123456         49 - 03012345678 +493012345678 03012345678
  30 - 2101234567 +302101234567 2101234567          852 - 25221234 +85225221234 25221234
  36 1 2661234 +3612661234 0612661234               354 - 5512345 +3545512345 5512345
  91 11 23456789 +911123456789 23456789             62 21 38901234 +622138901234 38901234
  98 21 66401234 +982166401234 02166401234          353 - 016711234 +35316711234 016711234
  972 3 6951234 +97236951234 036951234              39 - 0612345678 +390612345678 0612345678
  39 - 612345678 +390612345678 0612345678           39 - 3471234567 +393471234567 3471234567
  81 3 32101234 +81332101234 0332101234             7 495 1234567 +74951234567 84951234567
  254 - 0202345678 +254202345678 0202345678         82 2 7361234 +8227361234 027361234
  371 - 67012345 +37167012345 67012345              370 5 261234 +3705261234 805261234
  352 - 221234 +352221234 221234                    60 - 0321234567 +60321234567 0321234567
  356 - 21234567 +35621234567 21234567              52 - 015512345678 +525512345678 015512345678
  212 - 0522123456 +212522123456 0522123456         31 20 5551234 +31205551234 0205551234
  64 9 3091234 +6493091234 093091234                47 - 22123456 +4722123456 22123456
  92 - 02135661234 +922135661234 02135661234        51 1 4271234 +5114271234 014271234
  63 2 85231234 +63285231234 0285231234             48 - 221234567 +48221234567 221234567
  351 - 212345678 +351212345678 212345678           40 - 0213151234 +40213151234 0213151234
  966 11 4821234 +966114821234 0114821234           381 - 0113221234 +381113221234 0113221234
  65 - 63361234 +6563361234 63361234                421 2 59441234 +421259441234 0259441234
  27 - 0214871234 +27214871234 0214871234           34 - 912345678 +34912345678 912345678
  46 8 50821234 +46850821234 0850821234             41 - 0442111234 +41442111234 0442111234
  886 2 23491234 +886223491234 0223491234           66 2 2501234 +6622501234 022501234
  90 - 02125281234 +902125281234 02125281234        380 44 2781234 +380442781234 8442781234
  971 4 2231234 +97142231234 042231234              44 020 79460958 +442079460958 02079460958
  1684 - 6331234 +16846331234 16331234              84 - 02438251234 +842438251234 02438251234
  1 212 5551234 +12125551234 2125551234,12125551234,15551234,5551234
  1 212 2125551234 +12125551234 2125551234,12125551234,15551234,5551234
  1 - 3105551234 +13105551234 3105551234,13105551234,13105551234,3105551234
)";

}  // namespace

TEST(ANumberOfEachCountry, IsDialledThroughTheServiceAndOnTheTelephoneNetwork) {
  std::istringstream rows(kNumbers);
  std::string country, area, typed, out, pstn;
  int count = 0;
  while (rows >> country >> area >> typed >> out >> pstn) {
    DialHelper from(country.c_str(), area == "-" ? nullptr : area.c_str());
    EXPECT_EQ(Text(from.getZeltoOutDialString(typed.c_str())), out) << country;
    EXPECT_EQ(Pstn(from, out), pstn) << country;
    ++count;
  }
  EXPECT_GE(count, 60);
}

TEST(AHelper, TriesEveryFormWhereLocalDiallingVaries) {
  DialHelper from("1", "212");
  EXPECT_EQ(Pstn(from, "13105551234"), "13105551234,3105551234,15551234,5551234");
  EXPECT_EQ(Pstn(from, "+15551234"), "15551234,5551234,12125551234,2125551234");
  EXPECT_EQ(Pstn(from, "+1"), "1,,1212,212");
}

TEST(AHelper, PutsTheExchangesPrefixesBeforeNumbersOfOtherAreasAndCountries) {
  DialHelper from("49", "030", "9,", "55", "66");
  EXPECT_EQ(Pstn(from, "+442079460958"), "9,5500442079460958");
  EXPECT_EQ(Pstn(from, "+49891234567"), "066891234567");
  EXPECT_EQ(Pstn(from, "+4930123456"), "030123456");
  EXPECT_EQ(Pstn(from, "+49030123456"), "030123456");
  DialHelper india("91", "011");
  EXPECT_EQ(Pstn(india, "+911123456789"), "23456789");
  DialHelper withoutTrunk("376", "7", "", "", "8");
  EXPECT_EQ(Pstn(withoutTrunk, "+376312345"), "8312345");
  DialHelper brazil("55", "2111");
  EXPECT_EQ(Pstn(brazil, "+551933334444"), "0211933334444");
  EXPECT_EQ(Pstn(brazil, "+442079460958"), "02100442079460958");
  DialHelper exchange("49", "30", "9", "55", "66");
  EXPECT_EQ(Text(exchange.getZeltoOutDialString("966089123456")), "+4989123456");
  EXPECT_EQ(Text(exchange.getZeltoOutDialString("95500442079460958")), "+442079460958");
}

TEST(AHelper, TakesTheCarrierFromTheAreaCode) {
  const DialHelper brazil("55", "2111"), chile("56", "17132"), unchosen("55", "0"), shortOne("56", "17");
  EXPECT_EQ(brazil.op_code, "21");
  EXPECT_EQ(brazil.area_code, "11");
  EXPECT_TRUE(brazil.nat_prefix == "021" && brazil.int_prefix == "021");
  EXPECT_EQ(chile.op_code, "171");
  EXPECT_EQ(chile.area_code, "32");
  EXPECT_TRUE(chile.nat_prefix == "171" && chile.int_prefix == "171");
  EXPECT_TRUE(unchosen.area_code.isNull() && unchosen.op_code.isNull() && unchosen.nat_prefix == "0");
  EXPECT_TRUE(shortOne.op_code == "17" && shortOne.area_code == "");
  EXPECT_FALSE(brazil.trace);
}

TEST(AHelper, CleansWhatIsTyped) {
  DialHelper from("1", "212");
  EXPECT_EQ(Text(from.checkNumber("+1 (212) 555-1234 ext.9")), "+1 (212) 555-1234 9");
  EXPECT_EQ(Text(from.checkNumber("*#1+2\x80%s\n")), "*#12");
  EXPECT_EQ(Text(from.checkNumber(" +1")), " 1");
  EXPECT_EQ(Text(from.checkNumber("abc")), "");
  EXPECT_EQ(Text(from.checkNumber(nullptr)), "(null)");
  EXPECT_EQ(Out("44", "20", "+x1"), "+1");
  EXPECT_EQ(Out("44", "20", "12345x"), "12345");
}

TEST(AHelper, KnowsTheEdgesOfItsLengths) {
  EXPECT_EQ(Out("1", "0", "5551234"), "+15551234");
  EXPECT_EQ(Out("1", "212", "12125551234"), "+12125551234");
  EXPECT_EQ(Out("1", "212", "011442079460958"), "+442079460958");
  EXPECT_EQ(Out("44", "20", "0044123456789"), "+44044123456789");  // short enough without its trunk prefix
  EXPECT_EQ(Out("44", "20", "00441234567890"), "+441234567890");
  EXPECT_EQ(Out("39", "", "00442079460958"), "+442079460958");
  EXPECT_EQ(Out("39", "", "06123456789"), "+3906123456789");
  EXPECT_EQ(Out("39", "", "34712345"), "+39034712345");
  EXPECT_EQ(Out("39", "", "347123456"), "+39347123456");
}

TEST(AVeryLongNumber, KeepsAllOfItsDigits) {
  const std::string digits(1 << 20, '2');
  DialHelper from("1", "212");
  EXPECT_EQ(Out("1", "212", ("011" + digits).c_str()), "+" + digits);
  EXPECT_EQ(Pstn(from, "+" + digits), "011" + digits);
  EXPECT_EQ(from.getPSTNDialString(("1" + digits).c_str())[3].view(), digits.substr(3));
}

TEST(AHelper, LeavesNumbersOfUnknownCountriesAlone) {
  for (const char* code : {"999", "", "+44", "440", static_cast<const char*>(nullptr)}) {
    DialHelper from(code, "20");
    EXPECT_EQ(from.my_cdata, nullptr);
    EXPECT_TRUE(from.getZeltoOutDialString("79460958").isNull());
    EXPECT_EQ(Pstn(from, "+4420 7946x"), "+4420 7946x");
    EXPECT_TRUE(from.getPSTNDialString(ZEString()).isEmpty());
  }
}

TEST(AHelper, TellsWhatItDecidesOnlyWhenAskedTo) {
  DialHelper from("1", "%s%n");
  testing::internal::CaptureStdout();
  from.getZeltoOutDialString("5551234");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  from.trace = true;
  testing::internal::CaptureStdout();
  from.getZeltoOutDialString("3105551234");
  from.getPSTNDialString("+%s%n");
  from.lookupCData("7");
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "  > Process number 3105551234\n  > work2 : 3105551234\n"
            "  > shorter than (sub_max+area_max) 10(11) work:10 work2:10\n"
            "  > '+' removed, %s%n\n  > Country codes do not match.\n  > '' + '' + '011' + '%s%n' = 011%s%n\n"
            "CDATA = idd_prefix: 8p10 idd_code: 7, remove: 8\n");
}
