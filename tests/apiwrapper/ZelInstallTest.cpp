#include "apiwrapper/ZelInstall.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/apiwrapper/MemoryTransport.h"

namespace {

struct Operation {
  const char* request;
  std::vector<std::string> successes;
  std::vector<std::string> failures;  // beside those that fail each of them
  std::function<bool(ZelInstall&)> run;
};

const std::vector<Operation>& operations() {
  static const std::vector<Operation> rows = {
      {"CRCCHECK", {"CRCCHECK OK"}, {"CRCCHECK OK ", "CRCCHECK"}, [](ZelInstall& i) { return i.CRCCheck(); }},
      {"DOWNLOAD file:///a b",
       {"DOWNLOAD OK"},
       {"DOWNLOAD OK x", "DOWNLOADFROMFILE OK"},
       [](ZelInstall& i) { return i.Download("file:///a b"); }},
      {"DOWNLOADFROMFILE /a",
       {"DOWNLOADFROMFILE OK"},
       {"DOWNLOAD OK"},
       [](ZelInstall& i) { return i.DownloadFromFile("/a"); }},
      {"INSTALL", {"INSTALL OK"}, {"install OK", " INSTALL OK"}, [](ZelInstall& i) { return i.Install(); }},
      {"SET CONNECTTIMEOUT 5",
       {"SET OK", "SET OK then", "SET OKAY"},
       {"SET O", "SET  OK"},
       [](ZelInstall& i) { return i.Set(ZelInstall::CONNECTTIMEOUT, "5"); }},
      {"SET HTTPPROXY ",
       {"SET OK"},
       {},
       [](ZelInstall& i) { return i.Set(ZelInstall::HTTPPROXY, ZEString()); }},
      {"SET INSTALLPATH /x y",
       {"SET OK"},
       {},
       [](ZelInstall& i) { return i.Set(ZelInstall::INSTALLPATH, "/x y"); }},
  };
  return rows;
}

class AnInstaller : public ::testing::Test {
 protected:
  // Null: the stream ends instead.
  void answers(const char* reply) {
    transport.incoming.clear();
    if (reply != nullptr) transport.incoming.emplace_back(reply);
  }
  using Status = std::array<int, 4>;
  Status statusOf(const char* reply) {
    answers(reply);
    Status status = {0, -1, -1, -1};
    status[0] = install.Status(status[1], status[2], status[3]);
    EXPECT_EQ("STATUS", transport.written.back());
    return status;
  }
  void lastErrorIs(unsigned int code, const char* text) {
    EXPECT_EQ(code, install.LastErrorCode());
    EXPECT_STREQ(text, install.LastErrorText());
  }

  MemoryTransport transport;
  ZelInstall install{&transport};
};

TEST_F(AnInstaller, SendsEachRequestAndTakesItsOwnSuccessOnly) {
  for (const Operation& operation : operations()) {
    SCOPED_TRACE(operation.request);
    for (const std::string& reply : operation.successes) {
      answers(reply.c_str());
      EXPECT_TRUE(operation.run(install)) << reply;
      EXPECT_EQ(operation.request, transport.written.back());
    }
    std::vector<std::string> failures = operation.failures;
    failures.insert(failures.end(), {"", " ", "OK", "STATUS OK READY"});
    for (const std::string& reply : failures) {
      answers(reply.c_str());
      EXPECT_FALSE(operation.run(install)) << reply;
    }
    answers("X ERROR42 broken");
    EXPECT_FALSE(operation.run(install));
    lastErrorIs(42, " broken");
    answers(nullptr);
    EXPECT_FALSE(operation.run(install));
    lastErrorIs(0, "");
  }
  const std::size_t before = transport.written.size();
  for (const int other : {0, 4, -1}) EXPECT_FALSE(install.Set(static_cast<ZelInstall::SETVAR>(other), "x"));
  EXPECT_EQ(before, transport.written.size());
  transport.incoming = {"left"};
  install.Exit();
  EXPECT_EQ("EXIT", transport.written.back());
  EXPECT_EQ(1U, transport.incoming.size());
}

TEST_F(AnInstaller, TellsTheServicesStateWithItsNumbers) {
  EXPECT_EQ((Status{2, 0, 0, 0}), statusOf("STATUS OK READY 7 8 9"));
  EXPECT_EQ((Status{3, 0, 0, 0}), statusOf("STATUS OK CONNECTING"));
  EXPECT_EQ((Status{4, 10, 200, 3}), statusOf("STATUS OK DOWNLOADING 10 200 3"));
  EXPECT_EQ((Status{5, 1, 2, 3}), statusOf("STATUS OK DOWNLOAD FINISHED 1 2 3 4 5"));
  EXPECT_EQ((Status{6, 4, 5, 0}), statusOf("STATUS OK   INSTALLING  4   5 6"));
  EXPECT_EQ((Status{7, 8, 9, 0}), statusOf("STATUS OK INSTALL FINISHED 8 9"));
  EXPECT_EQ((Status{4, 0, 0, 0}), statusOf("STATUS OK DOWNLOADING"));
  EXPECT_EQ((Status{4, 5, 0, 0}), statusOf("STATUS OK DOWNLOADING 5 x"));
  EXPECT_EQ((Status{4, 1, 1, 1}), statusOf(("STATUS OK DOWNLOADING" + std::string(1 << 20, ' ') + "1 1 1" +
                                            std::string(1 << 20, ' '))
                                               .c_str()));
  for (const char* reply : {"STATUS OK", "STATUS OK ", "STATUS OK DOWNLOAD", "STATUS OK INSTALL 1 2",
                            "status OK READY", "STATUS OK READY2", "STATUS READY", "", "READY"}) {
    EXPECT_EQ((Status{1, 0, 0, 0}), statusOf(reply)) << reply;
  }
  EXPECT_EQ((Status{1, 0, 0, 0}), statusOf("STATUS ERROR21 no connection"));
  lastErrorIs(21, " no connection");
  EXPECT_EQ((Status{1, 0, 0, 0}), statusOf(nullptr));
  lastErrorIs(0, "");
}

TEST_F(AnInstaller, ReadsTheErrorOfARefusalOfAnyLengthAndShape) {
  std::mt19937 random(1);
  std::vector<std::string> replies;
  for (std::size_t length = 0; length <= 12; ++length) replies.push_back(std::string("S ERROR42xyz", length));
  for (int i = 0; i < 5000; ++i) {
    std::string reply(random() % 13, ' ');
    for (char& c : reply) c = " 09-aOK"[random() % 7];
    replies.push_back(reply);
  }
  for (const std::string& reply : replies) {
    SCOPED_TRACE(reply);
    answers(reply.c_str());
    EXPECT_FALSE(install.Install());
    // What an ordinary string makes of the same positions.
    const std::size_t blank = reply.find(' ');
    const bool has = blank != std::string::npos && blank + 6 < reply.size();
    const std::string code = has ? reply.substr(blank + 6, 2) : "";
    const bool hasText = has && blank + 8 < reply.size();
    lastErrorIs(static_cast<unsigned int>(std::strtoul(code.c_str(), nullptr, 10)),
                hasText ? reply.c_str() + blank + 8 : "");
  }
}

TEST_F(AnInstaller, ConnectsAndDisconnectsAndTellsWhenNobodyIsThere) {
  EXPECT_EQ(&ZelInstall::log, transport.logFunction);
  EXPECT_TRUE(install.init());
  install.cleanup();
  EXPECT_FALSE(transport.connected);
  transport.connects = false;
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(install.init());
  EXPECT_EQ("ZELTO ERROR - Have you properly started ZelInstall?\n",
            ::testing::internal::GetCapturedStderr());
}

}  // namespace
