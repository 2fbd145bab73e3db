// A blocking request and its reply between two processes on one core, the answering side included: the
// engine's root object and the simulated runtime's connection beside other ways of asking another process.
// One core for both keeps the machine's wake-up noise out.
#include <benchmark/benchmark.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <zmq.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "apiwrapper/ZESocketTransport.h"
#include "apiwrapper/Zelto.h"
#include "simulator/common/Connection.h"

namespace {

constexpr std::size_t kSmall = 60;
constexpr std::size_t kLarge = 16 * 1024;
constexpr std::size_t kIdSize = 8;  // "#12345  "

[[noreturn]] void die(const char* what) {
  std::perror(what);
  std::exit(1);
}

void require(bool condition, const char* what) {
  if (!condition) die(what);
}

// Another process, which runs `body` and is gone when this is.
class Child {
 public:
  explicit Child(const std::function<void()>& body) : m_pid(fork()) {
    require(m_pid >= 0, "fork");
    if (m_pid > 0) return;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    body();
    _exit(0);
  }
  ~Child() { waitpid(m_pid, nullptr, 0); }

 private:
  pid_t m_pid;
};

// A local socket's path in a folder of its own.
class SocketPlace {
 public:
  SocketPlace() {
    char folder[] = "/tmp/zelto-bench-XXXXXX";
    require(mkdtemp(folder) != nullptr, "mkdtemp");
    m_folder = folder;
    path = m_folder + "/socket";
  }
  ~SocketPlace() {
    unlink(path.c_str());
    rmdir(m_folder.c_str());
  }

  std::string path;

 private:
  std::string m_folder;
};

int listenAt(const std::string& path) {
  sockaddr_un address = sockaddr_un();
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof(address.sun_path) - 1);
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  require(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0, "bind");
  require(listen(listener, 1) == 0, "listen");
  return listener;
}

void answerRequests(int listener, std::size_t size) {
  simulator::Connection connection(accept(listener, nullptr, nullptr));
  close(listener);
  const std::string body = "b 0=\"" + std::string(size - kIdSize - 5, 'r') + "\"";
  std::string reply;
  while (connection.Receive([&](std::string_view text) {
    reply.assign(text.substr(0, text.find(' ') + 1));
    reply += body;
    connection.Send(reply);
  })) {
  }
}

// The engine's way.
void askByZelto(benchmark::State& state, std::size_t size) {
  const SocketPlace place;
  const int listener = listenAt(place.path);
  const Child runtime([&] { answerRequests(listener, size); });
  close(listener);
  ZESocketTransport transport(place.path.c_str());
  Zelto root(&transport);
  require(root.init(), "connect");
  const ZEString request(("a 1465 1594 0=\"" + std::string(size - kIdSize - 16, 'q') + "\"").c_str());
  for (auto _ : state) {
    const ZEString reply = root.sendAndBlock(request);
    require(reply.length() >= size - kIdSize, "reply");
    benchmark::DoNotOptimize(static_cast<const char*>(reply));
  }
  root.cleanup();
}

void exchangeAll(int descriptor, char* bytes, std::size_t size, bool write) {
  for (std::size_t done = 0; done < size;) {
    const ssize_t moved = write ? ::write(descriptor, bytes + done, size - done)
                                : ::read(descriptor, bytes + done, size - done);
    if (moved <= 0) return;
    done += static_cast<std::size_t>(moved);
  }
}

// The least that two processes need: one write and one read each.
void askBare(benchmark::State& state, std::size_t size) {
  int ends[2];
  require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0, "socketpair");
  std::string bytes(size, 'x');
  const Child responder([&] {
    close(ends[0]);
    for (ssize_t got = 0; (got = read(ends[1], bytes.data(), size)) > 0;) {
      exchangeAll(ends[1], bytes.data(), static_cast<std::size_t>(got), true);
    }
  });
  close(ends[1]);
  for (auto _ : state) {
    exchangeAll(ends[0], bytes.data(), size, true);
    exchangeAll(ends[0], bytes.data(), size, false);
  }
  close(ends[0]);
}

int answerOnBus(sd_bus_message* message, void* text, sd_bus_error*) {
  if (sd_bus_message_is_method_call(message, "zelto.Bench", "Ask") <= 0) return 0;
  const char* question = nullptr;
  sd_bus_message_read(message, "s", &question);
  return sd_bus_reply_method_return(message, "s", static_cast<const char*>(text)) < 0 ? -1 : 1;
}

sd_bus* openBus(int descriptor, bool server) {
  sd_bus* bus = nullptr;
  require(sd_bus_new(&bus) >= 0 && sd_bus_set_fd(bus, descriptor, descriptor) >= 0, "sd-bus");
  sd_id128_t id = {};
  if (server) {
    require(sd_id128_randomize(&id) >= 0 && sd_bus_set_server(bus, 1, id) >= 0, "sd-bus server");
  }
  require(sd_bus_start(bus) >= 0, "sd-bus start");
  return bus;
}

// sd-bus without a broker between the two.
void askByBus(benchmark::State& state, std::size_t size) {
  int ends[2];
  require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) == 0, "socketpair");
  std::string text(size, 'x');
  const Child responder([&] {
    close(ends[0]);
    sd_bus* bus = openBus(ends[1], true);
    sd_bus_add_filter(bus, nullptr, &answerOnBus, text.data());
    for (int processed = 0; processed >= 0;) {
      processed = sd_bus_process(bus, nullptr);
      if (processed == 0) processed = sd_bus_wait(bus, UINT64_MAX);
    }
  });
  close(ends[1]);
  sd_bus* bus = openBus(ends[0], false);
  for (auto _ : state) {
    sd_bus_error error = SD_BUS_ERROR_NULL;
    sd_bus_message* reply = nullptr;
    const char* answer = nullptr;
    require(
        sd_bus_call_method(bus, nullptr, "/", "zelto.Bench", "Ask", &error, &reply, "s", text.c_str()) >= 0,
        "sd-bus call");
    sd_bus_message_read(reply, "s", &answer);
    benchmark::DoNotOptimize(answer);
    sd_bus_message_unref(reply);
  }
  sd_bus_flush_close_unref(bus);
}

void answerOnQueue(const std::string& endpoint, std::size_t size) {
  void* context = zmq_ctx_new();
  void* socket = zmq_socket(context, ZMQ_REP);
  require(zmq_bind(socket, endpoint.c_str()) == 0, "zmq_bind");
  std::string bytes(size, 'x');
  // An empty message ends it.
  while (zmq_recv(socket, bytes.data(), size, 0) > 0) zmq_send(socket, bytes.data(), size, 0);
  zmq_send(socket, "", 0, 0);
  zmq_close(socket);
  zmq_ctx_term(context);
}

// ZeroMQ's request and reply sockets.
void askByQueue(benchmark::State& state, std::size_t size) {
  const SocketPlace place;
  const std::string endpoint = "ipc://" + place.path;
  const Child responder([&] { answerOnQueue(endpoint, size); });
  void* context = zmq_ctx_new();
  void* socket = zmq_socket(context, ZMQ_REQ);
  require(zmq_connect(socket, endpoint.c_str()) == 0, "zmq_connect");
  std::string bytes(size, 'x');
  for (auto _ : state) {
    zmq_send(socket, bytes.data(), size, 0);
    require(zmq_recv(socket, bytes.data(), size, 0) == static_cast<int>(size), "zmq_recv");
  }
  zmq_send(socket, "", 0, 0);
  zmq_recv(socket, bytes.data(), size, 0);
  zmq_close(socket);
  zmq_ctx_term(context);
}

BENCHMARK_CAPTURE(askByZelto, small, kSmall)->Name("Request60/zelto");
BENCHMARK_CAPTURE(askByBus, small, kSmall)->Name("Request60/sdbus");
BENCHMARK_CAPTURE(askBare, small, kSmall)->Name("Request60/bare");
BENCHMARK_CAPTURE(askByZelto, large, kLarge)->Name("Request16k/zelto");
BENCHMARK_CAPTURE(askByQueue, large, kLarge)->Name("Request16k/zeromq");

}  // namespace

int main(int argc, char** argv) {
  cpu_set_t one;
  CPU_ZERO(&one);
  CPU_SET(sched_getcpu(), &one);
  sched_setaffinity(0, sizeof(one), &one);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
