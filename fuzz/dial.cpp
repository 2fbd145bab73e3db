// Foreign texts as a telephone's setting and as a number: six pieces between zero bytes, the number last.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "dial/DialHelper.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

constexpr std::size_t kTexts = 6;
constexpr unsigned int kAreaDigits = 5;  // the longest area code that a rule takes away by its length

// A piece that is missing is the null string.
std::array<ZEString, kTexts> Pieces(std::string_view bytes) {
  std::array<ZEString, kTexts> texts;
  for (ZEString& text : texts) {
    const std::size_t end = bytes.find('\0');
    text = ZEString(bytes.substr(0, end));
    if (end == std::string_view::npos) break;
    bytes.remove_prefix(end + 1);
  }
  return texts;
}

void CheckCleaned(DialHelper& helper, const ZEString& number) {
  const ZEString cleaned = helper.checkNumber(number);
  Require(cleaned.isNull() == number.isNull() && cleaned.length() <= number.length());
  Require(cleaned.view().find_first_not_of("0123456789*# -()+") == std::string_view::npos);
  Require(cleaned.view().find('+', 1) == std::string_view::npos);
  Require(helper.checkNumber(cleaned) == cleaned);
}

void CheckOut(DialHelper& helper, const ZEString& number) {
  const ZEString out = helper.getZeltoOutDialString(number);
  const bool known = helper.my_cdata != nullptr;
  Require(known || out.isNull());
  const ZEString cleaned = helper.checkNumber(number);
  const bool asItIs = cleaned.startWith("+") ||
                      cleaned.length() < (known ? static_cast<unsigned int>(helper.my_cdata->sub_min) : 0);
  Require(!known || (asItIs ? out == cleaned : out.startWith("+")));
}

// Only what stands before a number changes.
void CheckList(DialHelper& helper, const ZEString& number) {
  const ZEStringList list = helper.getPSTNDialString(number);
  const bool known = helper.my_cdata != nullptr;
  Require(known ? !list.isEmpty() : list[0] == number);
  Require(list.size() <= 4);
  const unsigned int prefixes = 1 + helper.country_code.length() + helper.area_code.length() + kAreaDigits;
  const unsigned int kept = number.length() - std::min(number.length(), prefixes);
  for (unsigned int i = 0; i < list.size(); ++i)
    Require(list[i].right(kept) == number.right(kept) || kept == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [country, area, access, international, national, number] =
      Pieces({reinterpret_cast<const char*>(data), size});
  DialHelper plain(country, area);
  DialHelper exchange(country, area, access, international, national);
  for (DialHelper* helper : {&plain, &exchange}) {
    Require(helper->my_cdata == nullptr || helper->country_code == helper->my_cdata->idd_code);
    CheckCleaned(*helper, number);
    CheckOut(*helper, number);
    CheckList(*helper, number);
  }
  return 0;
}
