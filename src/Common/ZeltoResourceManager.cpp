#include "Common/ZeltoResourceManager.h"

#include <algorithm>

#include "Common/Assert.h"
#include "Common/Log.h"
#include "Common/ZeltoTexts.h"

using zelto::MutexLock;

namespace {

constexpr int kResultSize = 500;  // units of a text with everything put in, its terminator included
constexpr unsigned short kOpening[] = {'<', '<', 0};
constexpr unsigned short kClosing[] = {'>', '>', 0};
constexpr int kBracketSize = 2;
constexpr int kFromOpeningToClosing = kBracketSize + 1;  // one letter stands between them

// A text that grows up to its size; what goes beyond is only counted.
class Result {
 public:
  void Append(const unsigned short* text, int length) {
    for (int i = 0; i < length && m_length + i < kResultSize; ++i) m_units[m_length + i] = text[i];
    m_length += length;
  }
  int Length() const { return m_length; }
  const unsigned short* Units() const { return m_units; }

 private:
  unsigned short m_units[kResultSize];
  int m_length = 0;
};

bool IsContinued(const unsigned char* bytes, int count) {
  return std::find(bytes, bytes + count, 0) == bytes + count;
}

}  // namespace

std::atomic<int> CZeltoResourceManager::t_CurrentId{-1};

CZeltoResourceManager::CZeltoResourceManager() { Create(); }
CZeltoResourceManager::~CZeltoResourceManager() { Destroy(); }

bool CZeltoResourceManager::Create() {
  for (const ZeltoLanguage& language : kZeltoLanguages) {
    Register(language.id, language.texts, kZeltoTextCount);
  }
  return true;
}

void CZeltoResourceManager::Destroy() {
  MutexLock lock(m_mutex);
  m_current = nullptr;
  m_languages.clear();
}

bool CZeltoResourceManager::Register(int id, const unsigned short** strings, int count) {
  MutexLock lock(m_mutex);
  m_languages.push_back(std::make_unique<_STLangInfo>(_STLangInfo{id, strings, count}));
  int none = -1;
  t_CurrentId.compare_exchange_strong(none, id);
  if (m_current == nullptr || id == t_CurrentId) m_current = m_languages.back().get();
  return true;
}

const _STLangInfo* CZeltoResourceManager::Find(int id) const {
  for (const auto& language : m_languages) {
    if (language->id == id) return language.get();
  }
  return nullptr;
}

bool CZeltoResourceManager::SetLanguage(int id) {
  MutexLock lock(m_mutex);
  if (id == t_CurrentId) return true;
  const _STLangInfo* language = Find(id);
  if (language == nullptr) return false;
  m_current = language;
  t_CurrentId = id;
  return true;
}

const unsigned short* CZeltoResourceManager::GetWString(int stringId) {
  MutexLock lock(m_mutex);
  ZELTO_ASSERT(m_current != nullptr && "Zelto Resource Text is not registered !!!");
  if (stringId < 0 || stringId >= m_current->count) {
    ZELTO_FATAL("[Error] CZeltoResourceManager::GetWString - String ID is out of range - stringId[%d]",
                stringId);
    ZELTO_ASSERT(false && "Invalid stringId");
  }
  return m_current->strings[stringId];
}

const unsigned short* CZeltoResourceManager::GetWString(int languageId, int stringId) {
  MutexLock lock(m_mutex);
  const _STLangInfo* language = Find(languageId);
  if (language == nullptr) {
    ZELTO_FATAL("Zelto Resource Text is not registered !!![%d]", stringId);
    return nullptr;
  }
  if (stringId < 0 || stringId >= language->count) {
    ZELTO_FATAL("[Error] GetWString - String ID is out of range - stringId[%d]", stringId);
    ZELTO_ASSERT(false && "Invalid stringId");
  }
  return language->strings[stringId];
}

bool CZeltoResourceManager::CombinateStrings(unsigned short* out, int outSize, const unsigned short* format,
                                             const unsigned short* a, const unsigned short* b,
                                             const unsigned short* c, const unsigned short* d) {
  if (out == nullptr || format == nullptr) return false;
  MutexLock lock(m_mutex);
  const unsigned short* const arguments[] = {a, b, c, d};
  const auto firstNull = std::find(std::begin(arguments) + 1, std::end(arguments), nullptr);
  Result result;
  for (auto pass = std::begin(arguments); pass != firstNull; ++pass) {
    const unsigned short* opening = Wcsstr(format, kOpening);
    const unsigned short* closing = Wcsstr(format, kClosing);
    if (opening == nullptr || closing == nullptr || closing - opening != kFromOpeningToClosing) continue;
    result.Append(format, static_cast<int>(opening - format));
    const int chosen = opening[kBracketSize] - 'A';
    if (chosen < 0 || chosen >= static_cast<int>(std::size(arguments))) {
      ZELTO_FATAL("[CZeltoResourceManager::CombinateStrings] Error - invalid Word !!");
    } else if (arguments[chosen] != nullptr) {
      result.Append(arguments[chosen], Length(arguments[chosen]));
    }
    format = closing + kBracketSize;
  }
  result.Append(format, Length(format));
  if (result.Length() > outSize || result.Length() >= kResultSize) {
    ZELTO_FATAL("[CZeltoResourceManager::CombinateStrings] - Not enough size [input size:%d, result size:%d]",
                outSize, result.Length());
    return false;
  }
  std::copy_n(result.Units(), result.Length(), out);
  return true;
}

int CZeltoResourceManager::UTF8ToUnicode(unsigned short* out, const unsigned char* utf8, int max) {
  if (out == nullptr || utf8 == nullptr || max <= 0) return 0;
  MutexLock lock(m_mutex);
  for (int written = 0; written < max; ++written) {
    unsigned unit = 0;
    int taken = 0;
    if (*utf8 < 0x80) {
      unit = utf8[0];
      taken = unit != 0 ? 1 : 0;
    } else if ((*utf8 & 0xE0) == 0xC0 && IsContinued(utf8 + 1, 1)) {
      unit = (utf8[0] & 0x1Fu) << 6 | (utf8[1] & 0x3Fu);
      taken = 2;
    } else if ((*utf8 & 0xF0) == 0xE0 && IsContinued(utf8 + 1, 2)) {
      unit = static_cast<unsigned>(utf8[0]) << 12 | (utf8[1] & 0x3Fu) << 6 | (utf8[2] & 0x3Fu);
      taken = 3;
    }
    out[written] = static_cast<unsigned short>(unit);
    if (taken == 0) return written + 1;
    utf8 += taken;
  }
  return max;
}

const unsigned short* CZeltoResourceManager::Wcsstr(const unsigned short* text,
                                                    const unsigned short* pattern) {
  const unsigned short* const end = text + Length(text);
  const unsigned short* found = std::search(text, end, pattern, pattern + Length(pattern));
  return found == end && *pattern != 0 ? nullptr : found;
}

void CZeltoResourceManager::Concate(unsigned short* destination, const unsigned short* source) {
  Concate(destination, source, Length(source));
}

void CZeltoResourceManager::Concate(unsigned short* destination, const unsigned short* source, int n) {
  unsigned short* end = destination + Length(destination);
  for (; n > 0 && *source != 0; --n) *end++ = *source++;
  *end = 0;
}

int CZeltoResourceManager::Length(const unsigned short* text) {
  int length = 0;
  while (text[length] != 0) ++length;
  return length;
}

void CZeltoResourceManager::Copy(unsigned short* destination, const unsigned short* source, int n) {
  int copied = 0;
  for (; copied < n && source[copied] != 0; ++copied) destination[copied] = source[copied];
  std::fill(destination + copied, destination + std::max(copied, n), static_cast<unsigned short>(0));
}
