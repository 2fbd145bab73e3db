// The course of an installation over requests and replies, with time as the test says.
#include "simulator/installer/Installation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "simulator/installer/Checksum.h"
#include "simulator/installer/Requests.h"
#include "tests/support/DeviceRoot.h"

namespace installer {
namespace {

constexpr char kContent[] = "123456789";
constexpr char kChecksum[] = "CBF43926 of nine digits\n";
constexpr std::int64_t kSecond = 1000;

class AnInstallation : public ::testing::Test {
 protected:
  AnInstallation() {
    folder.Write("/package", kContent);
    folder.Write("/package.crc32", kChecksum);
  }

  std::string Ask(std::string_view text) { return requests.Answer(text, now).value_or("(none)"); }
  // After so much time.
  std::string Later(std::int64_t milliseconds, std::string_view text = "STATUS") {
    now += milliseconds;
    installation.Work(now);
    return Ask(text);
  }
  std::string Package() const { return folder / "/package"; }
  std::string FromFile() const { return "DOWNLOADFROMFILE " + Package(); }

  const test::DeviceRoot folder;
  std::int64_t now = 0;
  Installation installation{folder / "/into", 3};  // bytes a second
  Requests requests{installation};
};

TEST_F(AnInstallation, GoesFromADownloadOverTheCheckToTheInstalledFile) {
  EXPECT_EQ("STATUS OK READY", Ask("STATUS"));
  EXPECT_EQ("CRCCHECK ERROR30 nothing has been downloaded", Ask("CRCCHECK"));
  EXPECT_EQ("INSTALL ERROR30 nothing has been downloaded", Ask("INSTALL"));
  EXPECT_EQ("SET OK", Ask("SET INSTALLPATH /a/b"));
  EXPECT_EQ("DOWNLOAD OK", Ask("DOWNLOAD file://" + Package()));
  EXPECT_EQ("STATUS OK CONNECTING", Ask("STATUS"));
  EXPECT_EQ("STATUS OK DOWNLOADING 0 9 0", Later(kSecond));
  EXPECT_EQ("STATUS OK DOWNLOADING 6 9 3", Later(2 * kSecond));
  for (const std::string& request : {FromFile(), std::string("INSTALL"), std::string("CRCCHECK")})
    EXPECT_NE(std::string::npos, Ask(request).find(" ERROR20 busy")) << request;
  EXPECT_EQ("STATUS OK DOWNLOAD FINISHED 9 9 3", Later(kSecond));
  EXPECT_EQ("INSTALL ERROR33 the file has not been checked", Ask("INSTALL"));
  EXPECT_EQ("CRCCHECK OK", Ask("CRCCHECK"));
  EXPECT_EQ("INSTALL OK", Ask("INSTALL"));
  EXPECT_EQ("STATUS OK INSTALLING 6 9", Later(2 * kSecond));
  EXPECT_FALSE(folder.Has("/into/a/b/package"));
  EXPECT_EQ("STATUS OK INSTALL FINISHED 9 9", Later(kSecond));
  EXPECT_EQ(kContent, folder.Read("/into/a/b/package"));
  EXPECT_FALSE(folder.Has("/into/a/b/package.part"));
  EXPECT_EQ(-1, installation.UntilNext(now));
}

TEST_F(AnInstallation, KeepsWhatItHasWhenAnotherOneFails) {
  Ask(FromFile());
  Later(3 * kSecond);
  EXPECT_EQ("DOWNLOADFROMFILE ERROR22 no such file", Ask("DOWNLOADFROMFILE /no/such/file"));
  EXPECT_EQ("DOWNLOADFROMFILE ERROR22 no such file", Ask("DOWNLOADFROMFILE /dev/zero"));
  EXPECT_EQ("SET OK", Ask("SET CONNECTTIMEOUT 2"));
  EXPECT_EQ("DOWNLOAD OK", Ask("DOWNLOAD http://127.0.0.1/x"));
  EXPECT_EQ("STATUS OK CONNECTING", Later(2 * kSecond - 1));
  EXPECT_EQ("STATUS ERROR21 no connection", Later(1));
  EXPECT_EQ("STATUS ERROR21 no connection", Ask("STATUS"));
  folder.Write("/package", "1234");
  EXPECT_EQ("FAIL OK", Ask("FAIL DOWNLOADING=7"));
  Ask(FromFile());
  EXPECT_EQ("STATUS ERROR07 failed as it was asked to", Later(kSecond));
  EXPECT_EQ("CRCCHECK OK", Ask("CRCCHECK"));
  EXPECT_EQ("DOWNLOADFROMFILE OK", Ask(FromFile()));
  EXPECT_EQ("STATUS OK DOWNLOAD FINISHED 4 4 2", Later(2 * kSecond));
  EXPECT_EQ("CRCCHECK ERROR32 wrong checksum", Ask("CRCCHECK"));
  for (const char* digits : {"", "cbf4392", "cbf439261", "0xbf4392", " cbf4392"}) {
    folder.Write("/package.crc32", digits);
    EXPECT_FALSE(ExpectedChecksum(Package())) << digits;
  }
}

TEST_F(AnInstallation, RefusesWhatMakesNoSense) {
  for (const char* text :
       {"", " ", "SET", "STATUS ", "INSTALL now", "status", "SET INSTALLPATH ", "SET INSTALLPATH /a/../..",
        "SET X 1", "SET CONNECTTIMEOUT -1", "SET CONNECTTIMEOUT 99999", "DOWNLOAD", "DOWNLOAD /x",
        "DOWNLOADFROMFILE ", "FAIL", "FAIL X", "FAIL INSTALL=", "FAIL INSTALL=100"}) {
    const std::string reply = Ask(text);
    const std::size_t blank = reply.find(' ');
    EXPECT_EQ(" ERROR1", reply.substr(blank, 7)) << text << ": " << reply;
  }
  using namespace std::string_literals;
  EXPECT_EQ("DOWNLOADFROMFILE ERROR11 bad argument", Ask(FromFile() + "\0x"s));
  EXPECT_EQ("REQUEST ERROR13 request too long", Ask(std::string(100000, 'a')));
  EXPECT_EQ("(none)", Ask("EXIT"));
  EXPECT_EQ("FAIL OK", Ask("FAIL SET=41"));
  EXPECT_EQ("SET ERROR41 failed as it was asked to", Ask("SET INSTALLPATH /a"));
  EXPECT_EQ("SET OK", Ask("SET INSTALLPATH /a"));
}

}  // namespace
}  // namespace installer
