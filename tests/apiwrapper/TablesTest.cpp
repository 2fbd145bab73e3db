#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "apiwrapper/Account.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/Events.h"
#include "apiwrapper/tables/RootMethods.h"

namespace {

template <class Visit>
void forEachMethod(Visit visit) {
  for (const ZEMethod* row : CLASS_METHODS) visit(*row);
  for (const ZEMethod* row : ROOT_METHODS) visit(*row);
}

template <std::size_t N>
std::size_t used(const ZEField (&fields)[N]) {
  std::size_t count = 0;
  while (count < N && fields[count].key != nullptr) ++count;
  return count;
}

TEST(AnEnumeration, CountsWithTheFirstOfTwoEqualTokens) {
  EXPECT_EQ(ZEProtocol::ValueOf(CONTACT_AVAILABILITY_MAP, "1760"), 1);
  EXPECT_STREQ(ZEProtocol::TokenOf(CONTACT_AVAILABILITY_MAP, 8), "1385");
  EXPECT_STREQ(ZEProtocol::TokenOf(CONTACT_AVAILABILITY_MAP, 18), "1272");
}

TEST(AnEnumeration, NeedNotBeNumberedFromOneInOrder) {
  EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_VALIDATERESULT_MAP, "1653"), Account::NOT_VALIDATED);
  EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_AVATARPOLICY_MAP, "1097"), 1);
  EXPECT_EQ(ZEProtocol::ValueOf(SMS_CONFIRM_TYPE_MAP, "2047"), 0);
  EXPECT_EQ(ZEProtocol::TokenOf(ZELTO_CALLBACK_MAP, 10), nullptr);
}

TEST(AnEnumeration, AnswersNothingForWhatItDoesNotHold) {
  EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_STATUS_MAP, "1"), -1);
  EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_STATUS_MAP, ""), -1);
  EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_STATUS_MAP, nullptr), -1);
  EXPECT_EQ(ZEProtocol::ValueOf(nullptr, "1113"), -1);
  EXPECT_EQ(ZEProtocol::TokenOf(ACCOUNT_STATUS_MAP, 0), nullptr);
  EXPECT_EQ(ZEProtocol::TokenOf(ACCOUNT_STATUS_MAP, -1), nullptr);
  EXPECT_EQ(ZEProtocol::EnumOf(ACCOUNT_EMAP, Account::P_NAME), nullptr);
  EXPECT_EQ(ZEProtocol::EnumOf(ALERT_EMAP, 1), nullptr);
}

TEST(AClassRow, NumbersItsPropertiesFromOneAndEnumeratesOnlyThem) {
  for (const ZEClass* row : ALL_CLASSES) {
    int expected = 0;
    for (const PMAP* property = row->properties; property != nullptr && property->name != nullptr;
         ++property) {
      EXPECT_EQ(property->value, ++expected) << row->name;
    }
    for (const EMAP* entry = row->enums; entry != nullptr && entry->property != 0; ++entry) {
      EXPECT_NE(ZEProtocol::TokenOf(row->properties, entry->property), nullptr) << row->name;
    }
  }
  EXPECT_STREQ(ZEProtocol::TokenOf(ACCOUNT_PROPERTY_MAP, Account::P_VOICEMAIL_POLICY), "1442");
  EXPECT_STREQ(ZEProtocol::TokenOf(CALLMEMBER_PROPERTY_MAP, CallMember::P_VOICEMAIL_FAILUREREASON), "1081");
  EXPECT_STREQ(ZEProtocol::TokenOf(CONTACT_PROPERTY_MAP, Contact::P_ASSIGNED_PHONE3_LABEL), "1865");
}

TEST(AClassRow, IsFoundByTokenNameAndType) {
  for (const ZEClass* row : ALL_CLASSES) {
    EXPECT_EQ(ZEProtocol::ClassByToken(row->token), row) << row->name;
    EXPECT_EQ(ZEProtocol::ClassByName(row->name), row) << row->name;
    if (row->objectType == 0) continue;
    EXPECT_EQ(ZEProtocol::ClassByType(row->objectType), row) << row->name;
    EXPECT_STREQ(ZEProtocol::TokenOf(ZELTO_OBJECTTYPE_MAP, row->objectType), row->token);
  }
  EXPECT_EQ(ZEProtocol::ClassByToken("0"), nullptr);
  EXPECT_EQ(ZEProtocol::ClassByToken(nullptr), nullptr);
  EXPECT_EQ(ZEProtocol::ClassByType(0), nullptr) << "not the first class that has no type";
  EXPECT_EQ(ZEProtocol::ClassByName("account"), nullptr);
}

TEST(AMethodRow, IsFoundByTheTokensOfItsRequest) {
  forEachMethod([](const ZEMethod& row) {
    const ZEClass* owner = row.owner == nullptr ? &CHAT_CLASS : row.owner;
    EXPECT_EQ(ZEProtocol::MethodByToken(owner, row.token, row.call != ZECall::OneWay), &row) << row.name;
  });
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, "1252", true), &AccountMethod::Login)
      << "though it is one-way";
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, "1033"), nullptr) << "of another class";
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, "99999"), nullptr);
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, nullptr), nullptr);
  EXPECT_EQ(ZEProtocol::MethodByToken(nullptr, "1252"), nullptr);
}

TEST(AMethodRow, IsFoundByItsName) {
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "Say"), &ChatMethod::Say);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "OpenChatTo"), &RootMethod::OpenChatTo);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "GetProps"), &ObjectMethod::GetProps);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "Ring"), nullptr);
}

TEST(AMethodRow, SharesItsTokenWithNoOtherOfItsClassButForSms) {
  std::set<std::pair<const ZEClass*, std::string>> seen;
  std::vector<std::string> shared;
  forEachMethod([&](const ZEMethod& row) {
    if (!seen.emplace(row.owner, row.token).second) shared.emplace_back(row.name);
  });
  EXPECT_EQ(shared, std::vector<std::string>{"MarkSeen"});
  EXPECT_EQ(ZEProtocol::MethodByToken(&SMS_CLASS, "1871", true), &SmsMethod::SetTargets);
  EXPECT_EQ(ZEProtocol::MethodByToken(&SMS_CLASS, "1871", false), &SmsMethod::MarkSeen);
}

TEST(AMethodRow, HasAnEnumerationForEachTokenAndNoOtherAndReadsNothingWhenOneWay) {
  forEachMethod([](const ZEMethod& row) {
    const auto check = [&](const ZEField& field) {
      EXPECT_EQ(field.table != nullptr, field.kind == ZEKind::Token) << row.name;
      EXPECT_NE(ZEProtocol::KeyName(field.key), nullptr) << row.name;
    };
    for (std::size_t i = 0; i < used(row.arguments); ++i) check(row.arguments[i]);
    for (std::size_t i = 0; i < used(row.results); ++i) check(row.results[i]);
    EXPECT_TRUE(row.call != ZECall::OneWay || used(row.results) == 0) << row.name;
  });
}

TEST(AnEventRow, BelongsToEachCallbackToken) {
  for (const PMAP* entry = ZELTO_CALLBACK_MAP; entry->name != nullptr; ++entry) {
    const ZEEvent* event = ZEProtocol::EventByToken(entry->name);
    ASSERT_NE(event, nullptr) << entry->name;
    EXPECT_EQ(event->number, entry->value);
  }
  EXPECT_STREQ(ZEProtocol::EventByToken("1122")->name, "NewCall");
  EXPECT_EQ(ZEProtocol::EventByToken("0"), nullptr);
  EXPECT_EQ(ZEProtocol::EventByNumber(10), nullptr);
}

TEST(AKey, HasOneNameAndOneToken) {
  std::set<std::string> keys;
  std::set<std::string> names;
  for (const ZEKeyName& row : KEY_NAMES) {
    EXPECT_TRUE(keys.insert(row.key).second) << row.key;
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_STREQ(ZEProtocol::KeyName(row.key), row.name);
  }
  EXPECT_EQ(ZEProtocol::KeyName("x"), nullptr);
  EXPECT_EQ(ZEProtocol::KeyName(nullptr), nullptr);
}

}  // namespace
