// A runtime in the test's own process: a thread behind a local socket that speaks the client protocol,
// answers as it was told, and records what arrives.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// How long a test waits for something that must happen.
constexpr std::chrono::seconds kScriptPatience{20};

// A request as it came.
struct ScriptedRequest {
  std::string id;    // "#0 " with its blank; empty for a one-way request
  std::string text;  // the message without id
  std::string classToken;
  std::string method;
  std::map<std::string, std::string> arguments;  // unescaped; the last of equal keys
};

// Listens from its construction on, for one connection after the other. Whoever wrote no rule for a method
// has its blocking requests answered with an empty result.
// Threads: all operations may be called from any thread, handlers included; handlers run on the runtime's.
class ScriptedRuntime {
 public:
  using Handler = std::function<void(ScriptedRuntime&, const ScriptedRequest&)>;

  // Listens at that path, or at one in a temporary folder of its own.
  explicit ScriptedRuntime(const std::string& path = "");
  ScriptedRuntime(const ScriptedRuntime&) = delete;
  ScriptedRuntime& operator=(const ScriptedRuntime&) = delete;
  // Closes everything and removes what it made.
  ~ScriptedRuntime();

  const std::string& path() const { return m_path; }

  // Rules by method token; a later one replaces an earlier one.
  void on(const std::string& method, Handler handler);
  void reply(const std::string& method, const std::string& pairs);  // pairs as pair() makes them
  void stayMute(const std::string& method);

  // Answers a request: its id, "b " and the pairs. Nothing for a one-way request.
  void answer(const ScriptedRequest& request, const std::string& pairs);

  // An event, "e " being its first token: class, event, pairs.
  void sendEvent(const std::string& classToken, const std::string& event, const std::string& pairs = "");
  // A message of any content, framed.
  void sendMessage(const std::string& text);
  // Bytes as they are.
  void sendBytes(const std::string& bytes);
  // Closes the connection once everything before has been sent, and listens no more.
  void die();

  // Both wait up to kScriptPatience until that many requests of the method, or messages in all, have arrived
  // since the beginning.
  bool waitForRequests(const std::string& method, std::size_t count = 1);
  bool waitForMessages(std::size_t count);

  // Everything that arrived, message by message, byte for byte.
  std::vector<std::string> messages() const;
  std::vector<ScriptedRequest> requests(const std::string& method) const;

  // key="value" and a blank, the value escaped.
  static std::string pair(const std::string& key, const std::string& value);
  static std::string frame(const std::string& text);
  static ScriptedRequest parse(const std::string& message);

 private:
  template <class Condition>
  bool waitUntil(Condition condition);
  void wake();
  void run();
  void accept();
  void writeSome();
  void readSome();
  void takeMessages();
  void handle(const std::string& message);
  void drop();

  std::string m_folder;  // empty when the path was given
  std::string m_path;
  int m_listener = -1;
  int m_wakePipe[2] = {-1, -1};
  int m_connection = -1;  // the runtime's thread only
  std::string m_incoming;

  mutable std::mutex m_mutex;
  std::condition_variable m_changed;
  std::string m_outgoing;
  bool m_closing = false;  // once everything has been sent
  std::map<std::string, Handler> m_handlers;
  std::vector<std::string> m_messages;
  bool m_listening = true;
  bool m_stop = false;

  std::thread m_thread;
};
