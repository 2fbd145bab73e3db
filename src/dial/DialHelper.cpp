#include "dial/DialHelper.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "Common/Log.h"
#include "dial/DialRules.h"

namespace {

// Countries where the caller chooses a carrier, which the area code's first digits name.
struct CarrierChoice {
  const char* country_code;
  const char* country;
  int digits;
  const char* lead;  // stands before the carrier in both prefixes; null for nothing
};

constexpr CarrierChoice kCarrierChoices[] = {
    {"55", "Brazil", 2, "0"},
    {"56", "Chile", 3, nullptr},
};

constexpr std::string_view kKept = "0123456789*# -()";

const char* Chars(const ZEString& text) { return text; }

}  // namespace

DialHelper::DialHelper(ZEString countryCode, ZEString areaCode, ZEString accessCode,
                       ZEString internationalPrefix, ZEString nationalPrefix)
    : country_code(std::move(countryCode)),
      area_code(std::move(areaCode)),
      access_code(std::move(accessCode)),
      int_prefix(std::move(internationalPrefix)),
      nat_prefix(std::move(nationalPrefix)) {
  my_cdata = lookupCData(country_code);
  if (my_cdata != nullptr) DoAreaCode();
}

DialHelper::DialHelper(ZEString countryCode, ZEString areaCode)
    : DialHelper(std::move(countryCode), std::move(areaCode), "", "", "") {}

const CDATA* DialHelper::lookupCData(ZEString countryCode) {
  for (const CDATA* row = COUNTRIES; row->iso != nullptr; ++row) {
    if (countryCode != row->idd_code) continue;
    if (trace) {
      zelto::Print("CDATA = idd_prefix: %s idd_code: %s, remove: %s\n", row->idd_prefix, row->idd_code,
                   row->remove);
    }
    return row;
  }
  return nullptr;
}

void DialHelper::DoAreaCode() {
  if (area_code.toInt() == 0) area_code = ZEString();
  const auto choice =
      std::find_if(std::begin(kCarrierChoices), std::end(kCarrierChoices),
                   [&](const CarrierChoice& row) { return country_code == row.country_code; });
  if (choice == std::end(kCarrierChoices)) {
    if (trace) zelto::Print("area_code:%s\n", Chars(area_code));
    return;
  }
  op_code = area_code.substr(0, choice->digits - 1);
  area_code = area_code.trim(op_code);
  nat_prefix = choice->lead;
  nat_prefix += op_code;
  int_prefix = nat_prefix;
  if (trace) {
    zelto::Print("%s, op_code:%s area_code:%s nat_prefix(int_prefix):%s\n", choice->country, Chars(op_code),
                 Chars(area_code), Chars(nat_prefix));
  }
}

ZEString DialHelper::checkNumber(const ZEString& number) {
  if (number.isNull()) return {};
  return ZEString::build(number.length(), [text = number.view()](char* out) mutable {
    if (!text.empty() && text.front() == '+') {
      *out++ = '+';
      text.remove_prefix(1);
    }
    return std::copy_if(text.begin(), text.end(), out, [](char c) { return kKept.find(c) != kKept.npos; });
  });
}

ZEStringList DialHelper::getPSTNDialString(ZEString number) {
  if (my_cdata == nullptr) {
    ZEStringList unchanged;
    unchanged.append(number);
    return unchanged;
  }
  const ZEString work = number.trim("+");
  if (trace && number.startWith("+")) zelto::Print("  > '+' removed, %s\n", Chars(work));
  if (!work.startWith(country_code)) return dial::FormAbroad(*this, work);
  const ZEString national = work.trim(country_code);
  if (trace) zelto::Print("  > Country code match and removed, %s\n", Chars(national));
  return dial::LocalForms(*this, national);
}

ZEString DialHelper::getZeltoOutDialString(ZEString number) {
  if (my_cdata == nullptr) return {};
  const ZEString work = checkNumber(number);
  if (work.startWith("+")) return work;
  if (work.length() < static_cast<unsigned int>(my_cdata->sub_min)) {
    if (trace) zelto::Print("  > number too short(<%d)\n", my_cdata->sub_min);
    return work;
  }
  if (trace) zelto::Print("  > Process number %s\n", Chars(work));
  return dial::InternationalForm(*this, work);
}
