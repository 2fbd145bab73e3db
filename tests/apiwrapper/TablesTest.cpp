#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "apiwrapper/Account.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"

namespace {

template <class Visit>
void forEachMethod(Visit visit) {
  for (const ZEMethod* row : CLASS_METHODS) visit(*row);
  for (const ZEMethod* row : ROOT_METHODS) visit(*row);
}

TEST(AnEnumeration, CountsWithTheFirstOfTwoEqualTokens) {
  EXPECT_EQ(ZEProtocol::ValueOf(CONTACT_AVAILABILITY_MAP, "1760"), 1);
  EXPECT_STREQ(ZEProtocol::TokenOf(CONTACT_AVAILABILITY_MAP, 18), "1272");
  EXPECT_EQ(ZEProtocol::ValueOf(SMS_CONFIRM_TYPE_MAP, "2047"), 0) << "not all are numbered from one";
}

TEST(AnEnumeration, AnswersNothingForWhatItDoesNotHold) {
  for (const char* token : {"1", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(ZEProtocol::ValueOf(ACCOUNT_STATUS_MAP, token), -1);
  }
  EXPECT_EQ(ZEProtocol::ValueOf(nullptr, "1113"), -1);
  EXPECT_EQ(ZEProtocol::TokenOf(ACCOUNT_STATUS_MAP, 0), nullptr);
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
}

TEST(AClassRow, IsFoundByTokenNameAndType) {
  for (const ZEClass* row : ALL_CLASSES) {
    EXPECT_EQ(ZEProtocol::ClassByToken(row->token), row) << row->name;
    EXPECT_EQ(ZEProtocol::ClassByName(row->name), row) << row->name;
    if (row->objectType == 0) continue;
    EXPECT_EQ(ZEProtocol::ClassByType(row->objectType), row) << row->name;
    EXPECT_STREQ(ZEProtocol::TokenOf(ZELTO_OBJECTTYPE_MAP, row->objectType), row->token);
  }
  EXPECT_EQ(ZEProtocol::ClassByToken(nullptr), nullptr);
  EXPECT_EQ(ZEProtocol::ClassByType(0), nullptr) << "not the first class that has no type";
}

TEST(AMethodRow, IsFoundByTheTokensOfItsRequest) {
  std::set<std::pair<const ZEClass*, std::string>> seen;
  forEachMethod([&](const ZEMethod& row) {
    const ZEClass* owner = row.owner == nullptr ? &CHAT_CLASS : row.owner;
    EXPECT_EQ(ZEProtocol::MethodByToken(owner, row.token, row.call != ZECall::OneWay), &row) << row.name;
    // Two methods of text messages share a token; the one that waits is the other one.
    EXPECT_TRUE(seen.emplace(row.owner, row.token).second || &row == &SmsMethod::MarkSeen) << row.name;
  });
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, "1252", true), &AccountMethod::Login)
      << "though it is one-way";
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, "1033"), nullptr) << "of another class";
  EXPECT_EQ(ZEProtocol::MethodByToken(&ACCOUNT_CLASS, nullptr), nullptr);
  EXPECT_EQ(ZEProtocol::MethodByToken(nullptr, "1252"), nullptr);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "OpenChatTo"), &RootMethod::OpenChatTo);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "GetProps"), &ObjectMethod::GetProps);
  EXPECT_EQ(ZEProtocol::MethodByName(&CHAT_CLASS, "Ring"), nullptr);
}

TEST(AMethodRow, HasAnEnumerationForEachTokenAndNoOtherAndReadsNothingWhenOneWay) {
  forEachMethod([](const ZEMethod& row) {
    const auto check = [&](const ZEField& field) {
      if (field.key == nullptr) return;
      EXPECT_EQ(field.table != nullptr, field.kind == ZEKind::Token) << row.name;
      EXPECT_NE(ZEProtocol::KeyName(field.key), nullptr) << row.name;
    };
    for (const ZEField& argument : row.arguments) check(argument);
    for (const ZEField& result : row.results) check(result);
    EXPECT_TRUE(row.call != ZECall::OneWay || row.results[0].key == nullptr) << row.name;
  });
}

}  // namespace
