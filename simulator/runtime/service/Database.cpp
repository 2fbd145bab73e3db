#include "simulator/runtime/service/Database.h"

#include <sqlite3.h>

namespace simulator {
namespace {

// A second process on the same file (a developer's shell) is waited for that long.
constexpr int kBusyMilliseconds = 2000;

}  // namespace

Database::Database(const std::string& path, std::initializer_list<const char*> steps) {
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  try {
    if (sqlite3_open_v2(path.c_str(), &m_database, kFlags, nullptr) != SQLITE_OK) Fail("open");
    sqlite3_busy_timeout(m_database, kBusyMilliseconds);
    Execute("PRAGMA journal_mode = WAL");
    // The log reaches the system's cache with every commit, which is all that a killed process needs.
    Execute("PRAGMA synchronous = NORMAL");
    Execute("PRAGMA foreign_keys = ON");
    Migrate(steps);
  } catch (...) {
    Close();
    throw;
  }
}

Database::~Database() { Close(); }

void Database::Close() {
  for (const auto& [sql, statement] : m_statements) sqlite3_finalize(statement);
  m_statements.clear();
  sqlite3_close(m_database);
}

void Database::Migrate(std::initializer_list<const char*> steps) {
  Transaction transaction(*this);
  std::int64_t version = 0;
  {
    Rows rows = Ask("PRAGMA user_version");
    if (rows.Next()) version = rows.Number(0);
  }
  const auto wanted = static_cast<std::int64_t>(steps.size());
  if (version > wanted) throw DatabaseError("the file belongs to a later version of the program");
  for (std::int64_t step = version; step < wanted; ++step) Execute(steps.begin()[step]);
  if (version < wanted) Execute(("PRAGMA user_version = " + std::to_string(wanted)).c_str());
  transaction.Commit();
}

void Database::Execute(const char* sql) {
  if (sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail(sql);
}

sqlite3_stmt* Database::Prepare(const char* sql, std::initializer_list<Argument> arguments) {
  auto found = m_statements.find(std::string_view(sql));
  if (found == m_statements.end()) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(m_database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK) {
      Fail(sql);
    }
    found = m_statements.emplace(sql, statement).first;
  }
  sqlite3_stmt* statement = found->second;
  sqlite3_reset(statement);
  int index = 0;
  for (const Argument& argument : arguments) {
    ++index;
    if (const auto* number = std::get_if<std::int64_t>(&argument)) {
      sqlite3_bind_int64(statement, index, *number);
      continue;
    }
    const auto text = std::get<std::string_view>(argument);
    // A null pointer would be stored as NULL, which an empty text is not.
    sqlite3_bind_text64(statement, index, text.empty() ? "" : text.data(), text.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
  }
  return statement;
}

Database::Rows Database::Ask(const char* sql, std::initializer_list<Argument> arguments) {
  return Rows(*this, Prepare(sql, arguments));
}

int Database::Run(const char* sql, std::initializer_list<Argument> arguments) {
  Rows rows(*this, Prepare(sql, arguments));
  while (rows.Next()) {
  }
  return sqlite3_changes(m_database);
}

void Database::Fail(const char* what) const {
  throw DatabaseError(std::string(what) + ": " + sqlite3_errmsg(m_database));
}

Database::Rows::~Rows() { sqlite3_reset(m_statement); }

bool Database::Rows::Next() {
  const int result = sqlite3_step(m_statement);
  if (result == SQLITE_ROW) return true;
  if (result != SQLITE_DONE) m_database.Fail(sqlite3_sql(m_statement));
  return false;
}

std::string Database::Rows::Text(int column) const {
  const auto* text = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
  const int size = sqlite3_column_bytes(m_statement, column);
  return text == nullptr ? std::string() : std::string(text, static_cast<std::size_t>(size));
}

std::int64_t Database::Rows::Number(int column) const { return sqlite3_column_int64(m_statement, column); }

Database::Transaction::Transaction(Database& database)
    : m_database(database), m_open(!database.m_inTransaction) {
  if (!m_open) return;
  m_database.Execute("BEGIN IMMEDIATE");
  m_database.m_inTransaction = true;
}

Database::Transaction::~Transaction() {
  if (!m_open) return;
  sqlite3_exec(m_database.m_database, "ROLLBACK", nullptr, nullptr, nullptr);
  m_database.m_inTransaction = false;
}

void Database::Transaction::Commit() {
  if (!m_open) return;
  m_database.Execute("COMMIT");
  m_database.m_inTransaction = false;
  m_open = false;
}

}  // namespace simulator
