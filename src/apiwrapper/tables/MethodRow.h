// Short words for the rows of the method and event tables.
#pragma once

#include "apiwrapper/ZEProtocol.h"

namespace ZERow {
inline constexpr ZECall Reply = ZECall::Reply;
inline constexpr ZECall OneWay = ZECall::OneWay;
inline constexpr ZECall Either = ZECall::Either;
inline constexpr ZETarget Object = ZETarget::Object;
inline constexpr ZETarget Service = ZETarget::Service;

constexpr ZEField Text(const char* key) { return {key, ZEKind::Text, nullptr}; }
constexpr ZEField Flag(const char* key) { return {key, ZEKind::Flag, nullptr}; }
constexpr ZEField Number(const char* key) { return {key, ZEKind::Number, nullptr}; }
constexpr ZEField Token(const char* key, const PMAP* table) { return {key, ZEKind::Token, table}; }
constexpr ZEField ObjectId(const char* key) { return {key, ZEKind::Object, nullptr}; }
constexpr ZEField Objects(const char* key) { return {key, ZEKind::Objects, nullptr}; }
constexpr ZEField Texts(const char* key) { return {key, ZEKind::Texts, nullptr}; }
constexpr ZEField Binary(const char* key) { return {key, ZEKind::Binary, nullptr}; }
}  // namespace ZERow
