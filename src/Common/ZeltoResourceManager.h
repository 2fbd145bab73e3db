#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include "Common/Locks.h"

// A registered language.
struct _STLangInfo {
  int id;
  const unsigned short** strings;  // static, NUL-terminated UTF-16
  int count;
};

// The languages of the engine's texts, the current one among them, and what puts names and numbers into a
// text. Texts answered are static.
// Threads: any; one operation at a time. Only GetLanguage never waits.
class CZeltoResourceManager {
 public:
  // Knows every language of Common/texts from the beginning. Which one is current is common to all managers.
  CZeltoResourceManager();
  ~CZeltoResourceManager();
  CZeltoResourceManager(const CZeltoResourceManager&) = delete;
  CZeltoResourceManager& operator=(const CZeltoResourceManager&) = delete;

  // Registers all languages; always true.
  bool Create();
  // Forgets them.
  void Destroy();
  // Adds a language; the first one of all becomes the current one. The table stays the caller's and must
  // outlive the manager. Always true.
  bool Register(int id, const unsigned short** strings, int count);

  // False, and nothing changed, for a language that is not registered.
  bool SetLanguage(int id);
  // -1 before any registration.
  static int GetLanguage() { return t_CurrentId; }

  // A text of the current language. A number out of range, or no language at all, ends the process.
  const unsigned short* GetWString(int stringId);
  // A text of a certain language; null when it is not registered. A number out of range ends the process.
  const unsigned short* GetWString(int languageId, int stringId);

  // Puts a to d, up to the first null one, into the places <<A>> to <<D>> of the format. `out` has room for
  // `outSize` units and is zero-filled; the result is written without a terminator. False, and nothing
  // written, when the result has more units than that, or more than 499.
  bool CombinateStrings(unsigned short* out, int outSize, const unsigned short* format,
                        const unsigned short* a, const unsigned short* b, const unsigned short* c,
                        const unsigned short* d);

  // Converts up to `max` units. The count of those written, with the terminator if there was room for it.
  // Ends at the first character beyond U+FFFF, which the television's fonts do not have, and at one that is
  // cut off. 0 for no text and no room.
  int UTF8ToUnicode(unsigned short* out, const unsigned char* utf8, int max);

  // UTF-16 texts that end with 0.
  // The pattern's first place in the text, or null; the text itself for an empty pattern.
  static const unsigned short* Wcsstr(const unsigned short* text, const unsigned short* pattern);
  // Appends at most n units, or all; the destination must have the room.
  static void Concate(unsigned short* destination, const unsigned short* source);
  static void Concate(unsigned short* destination, const unsigned short* source, int n);
  static int Length(const unsigned short* text);
  // Copies at most n units and fills the rest of the n with 0.
  static void Copy(unsigned short* destination, const unsigned short* source, int n);

 private:
  const _STLangInfo* Find(int id) const ZELTO_REQUIRES(m_mutex);

  zelto::Mutex m_mutex{zelto::LockRank::Leaf, "texts"};
  std::vector<std::unique_ptr<_STLangInfo>> m_languages ZELTO_GUARDED_BY(m_mutex);
  const _STLangInfo* m_current ZELTO_GUARDED_BY(m_mutex) = nullptr;

  static std::atomic<int> t_CurrentId;
};
