#include "dial/DialRules.h"

#include <cstring>
#include <iterator>
#include <string_view>

#include "Common/Log.h"
#include "apiwrapper/ZEText.h"

namespace dial {
namespace {

const char* Chars(const ZEString& text) { return text; }

long Length(const ZEString& text) { return static_cast<long>(text.length()); }

// Never null.
ZEString Joined(std::initializer_list<std::string_view> parts) {
  std::size_t length = 0;
  for (const std::string_view part : parts) length += part.size();
  return ZEString::build(length, [&](char* out) {
    for (const std::string_view part : parts) out = zetext::Copy(out, part);
    return out;
  });
}

ZEStringList ListOf(const ZEString& text) {
  ZEStringList list;
  list.append(text);
  return list;
}

bool IsItaly(const DialHelper& from) { return from.country_code == "39"; }

// Italian fixed lines keep their zero abroad; mobile numbers begin with 3 and have none.
ZEString WithItalianZero(const ZEString& work) {
  constexpr int kMobile = 9;
  const bool complete = work.startWith("0") || (work.startWith("3") && Length(work) >= kMobile);
  return complete ? work : Joined({"0", work.view()});
}

ZEString AreaWithoutTrunk(const DialHelper& from) { return from.area_code.trim(from.my_cdata->remove); }

// Of what has its country code already, but was typed as it is dialled from here.
ZEString WithoutWayOut(const DialHelper& from, const ZEString& work) {
  const ZEString rest = work.trim(from.access_code).trim(from.int_prefix).trim(from.my_cdata->idd_prefix);
  return Joined({"+", rest.view()});
}

ZEString ItalianForm(const DialHelper& from, const ZEString& work) {
  if (Length(work) > from.my_cdata->sub_max) return WithoutWayOut(from, work);
  return Joined({"+", from.country_code.view(), WithItalianZero(work).view()});
}

ZEString WithNationalPrefix(const DialHelper& from, const ZEString& work) {
  return Joined({from.my_cdata->remove, from.nat_prefix.view(), work.view()});
}

ZEStringList DialN(const DialHelper& from, const ZEString& work) {
  if (!from.area_code.isEmpty() && work.startWith(from.area_code)) {
    if (from.trace) zelto::Print("  > 'N',  area codes is matched.");
    return ListOf(work.trim(from.area_code));
  }
  const ZEString area = AreaWithoutTrunk(from);
  if (!area.isEmpty() && work.startWith(area)) {
    if (from.trace) zelto::Print("  > 'N',  area codes(without remove) is matched.");
    return ListOf(work.trim(area));
  }
  if (from.trace) zelto::Print("  > 'N',  area codes do not match.");
  return ListOf(WithNationalPrefix(from, work));
}

ZEStringList DialAR(const DialHelper& from, const ZEString& work) {
  const bool withoutTrunk = work.startWith(AreaWithoutTrunk(from));
  if (withoutTrunk || work.startWith(from.area_code)) {
    if (from.trace) zelto::Print("  > 'A', 'R', area codes is matched.");
    return ListOf(withoutTrunk ? Joined({from.my_cdata->remove, work.view()}) : work);
  }
  if (from.trace) zelto::Print("  > 'A', 'R', area codes do not match.");
  return ListOf(WithNationalPrefix(from, work));
}

// Where there is no trunk prefix the form with it would be the plain one once more.
void AppendWithTrunk(ZEStringList& list, const DialHelper& from, const ZEString& text) {
  const std::string_view trunk = from.my_cdata->remove;
  if (!trunk.empty()) list.append(Joined({trunk, text.view()}));
}

void AppendTrunkFirst(ZEStringList& list, const DialHelper& from, const ZEString& text) {
  AppendWithTrunk(list, from, text);
  list.append(text);
}

ZEStringList DialI(const DialHelper& from, const ZEString& work) {
  const CDATA& country = *from.my_cdata;
  const ZEString area = AreaWithoutTrunk(from);
  ZEStringList list;
  if (work.startWith(area) || work.startWith(from.area_code)) {
    if (from.trace) zelto::Print("  > 'I',  area codes is matched.");
    list.append(work);
    AppendWithTrunk(list, from, work);
    AppendTrunkFirst(list, from, work.trim(area));
    return list;
  }
  if (country.area_min != country.area_max) {
    if (from.trace) zelto::Print("  > 'I',  area codes do not match and area_min != area_max.");
    return ListOf(WithNationalPrefix(from, work));
  }
  if (from.trace) zelto::Print("  > 'I',  area codes do not match and area_min == area_max.");
  const bool local = Length(work) < country.area_min + country.sub_min;
  if (from.trace) {
    zelto::Print("  > work.length() %s (my_cdata->area_min+my_cdata->sub_min)", local ? "<" : ">=");
  }
  AppendTrunkFirst(list, from, work);
  const auto areaDigits = static_cast<std::size_t>(country.area_min);
  AppendTrunkFirst(list, from,
                   local ? Joined({area.view(), work.view()}) : ZEString(work.view().substr(areaDigits)));
  return list;
}

using LocalRule = ZEStringList (*)(const DialHelper& from, const ZEString& work);
constexpr LocalRule kLocalRules[] = {DialN, DialAR, DialAR, DialI};  // by CDATA::rule
static_assert(std::size(kLocalRules) == kRules);

}  // namespace

ZEString InternationalForm(const DialHelper& from, const ZEString& work) {
  if (IsItaly(from)) return ItalianForm(from, work);
  const CDATA& country = *from.my_cdata;
  const std::string_view code = from.country_code.view();
  // Countries without a trunk prefix are given one digit to spare.
  const int trunk = *country.remove == '\0' ? 1 : static_cast<int>(std::strlen(country.remove));
  const int localLimit = trunk + country.sub_max;
  if (Length(work) < localLimit) {
    if (from.trace) zelto::Print("  > shorter than sub_max %d(%ld)\n", country.sub_max, long{localLimit});
    return Joined({"+", code, AreaWithoutTrunk(from).view(), work.view()});
  }
  const ZEString work2 = work.trim(from.access_code).trim(from.nat_prefix).trim(country.remove);
  if (from.trace) zelto::Print("  > work2 : %s\n", Chars(work2));
  const int nationalLimit = localLimit + country.area_max;
  if (Length(work) >= nationalLimit && Length(work2) >= nationalLimit) {
    if (from.trace) zelto::Print("  > already an international number, \"+\"+work");
    return WithoutWayOut(from, work);
  }
  if (from.trace) {
    zelto::Print("  > shorter than (sub_max+area_max) %d(%ld) work:%ld work2:%ld\n",
                 country.sub_max + country.area_max, long{nationalLimit}, Length(work), Length(work2));
  }
  return Joined({"+", code, work2.view()});
}

ZEStringList LocalForms(const DialHelper& from, const ZEString& national) {
  if (IsItaly(from)) return ListOf(WithItalianZero(national));
  return kLocalRules[from.my_cdata->rule](from, national);
}

ZEStringList FormAbroad(const DialHelper& from, const ZEString& work) {
  const std::string_view way = from.my_cdata->idd_prefix;
  const ZEString text = Joined({from.access_code.view(), from.int_prefix.view(), way, work.view()});
  if (from.trace) {
    zelto::Print("  > Country codes do not match.");
    zelto::Print("  > '%s' + '%s' + '%s' + '%s' = %s\n", Chars(from.access_code), Chars(from.int_prefix),
                 from.my_cdata->idd_prefix, Chars(work), Chars(text));
  }
  return ListOf(text);
}

}  // namespace dial
