// SQLite for people who want to ask a question and step through its rows.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

namespace simulator {

// Something the database could not do.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One database file in write-ahead mode: what a call has stored survives the death of the process from
// its return on. Statements are prepared once and kept. Everything throws DatabaseError when it fails.
// Threads: none of its own.
class Database {
 public:
  using Argument = std::variant<std::int64_t, std::string_view>;

  // The rows of one question; must be gone before the same question is asked again.
  class Rows {
   public:
    explicit Rows(Database& database, sqlite3_stmt* statement)
        : m_database(database), m_statement(statement) {}
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    ~Rows();

    // Moves to the next row; false behind the last one.
    bool Next();
    // Columns of the current row, counted from 0.
    std::string Text(int column) const;
    std::int64_t Number(int column) const;

   private:
    Database& m_database;
    sqlite3_stmt* m_statement;
  };

  // Opens or creates the file and brings it to the schema: `steps[v]` leads from version v to v + 1. A file
  // of a later version is refused.
  Database(const std::string& path, std::initializer_list<const char*> steps);
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database();

  Rows Ask(const char* sql, std::initializer_list<Argument> arguments = {});
  // Answers the number of rows that were changed.
  int Run(const char* sql, std::initializer_list<Argument> arguments = {});

  // All or nothing: what was run since its beginning is undone unless Commit() is reached. One inside another
  // is part of it.
  class Transaction {
   public:
    explicit Transaction(Database& database);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();
    void Commit();

   private:
    Database& m_database;
    bool m_open;
  };

 private:
  void Execute(const char* sql);
  void Migrate(std::initializer_list<const char*> steps);
  sqlite3_stmt* Prepare(const char* sql, std::initializer_list<Argument> arguments);
  void Close();
  [[noreturn]] void Fail(const char* what) const;

  sqlite3* m_database = nullptr;
  bool m_inTransaction = false;
  std::map<std::string, sqlite3_stmt*, std::less<>> m_statements;
};

}  // namespace simulator
