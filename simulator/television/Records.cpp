#include "simulator/television/Records.h"

#include <utility>

namespace television {

std::vector<Record> ReadRecords(std::string_view text, std::size_t fields) {
  std::vector<Record> records;
  Record record;
  for (std::size_t end; (end = text.find(kFieldSeparator)) != std::string_view::npos;) {
    record.emplace_back(text.substr(0, end));
    text.remove_prefix(end + kFieldSeparator.size());
    if (record.size() < fields) continue;
    records.push_back(std::move(record));
    record.clear();
  }
  return records;
}

}  // namespace television
