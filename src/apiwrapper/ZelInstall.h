// The way to the installer service, which downloads and installs the runtime's package: one request, one
// reply, over the transports of the client protocol. For hosts; the engine itself does not use it.
#pragma once

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZETransport.h"

// Used as init(), any operations, Exit(), cleanup(). Replies may be of any length and shape. An operation
// that asks the service waits as long as the service takes; it ends with a failure when the connection ends.
// Threads: none inside; one thread at a time, as with the transport.
class ZELTO_EXPORT ZelInstall {
 public:
  enum SETVAR {
    CONNECTTIMEOUT = 1,  // seconds
    HTTPPROXY = 2,       // where downloads go through
    INSTALLPATH = 3,     // the folder to install into
  };
  // What Status() answers.
  enum STATUS {
    STATUS_ERROR = 1,
    STATUS_READY = 2,
    STATUS_CONNECTING = 3,
    STATUS_DOWNLOADING = 4,
    STATUS_DOWNLOAD_FINISHED = 5,
    STATUS_INSTALLING = 6,
    STATUS_INSTALL_FINISHED = 7,
  };

  // The transport is not owned, not null, and outlives this object. From now on it logs through log().
  explicit ZelInstall(ZETransport* transport);
  ZelInstall(const ZelInstall&) = delete;
  ZelInstall& operator=(const ZelInstall&) = delete;
  // Does not disconnect.
  virtual ~ZelInstall();

  // Connects; false with an error line when it fails.
  bool init();
  // Disconnects.
  void cleanup();

  // Each asks the service for one thing and answers whether it agreed; the work may go on after that, and
  // Status() tells of it. False replaces the last error.
  bool CRCCheck();
  bool Download(const ZEString& url);
  // `path` as the service's machine knows it.
  bool DownloadFromFile(const ZEString& path);
  bool Install();
  // A variable that does not exist is not sent, and false with an empty error.
  bool Set(SETVAR variable, const ZEString& value);

  // A STATUS, with what the service counts, 0 where it counts nothing: `first` is how much is done and
  // `second` how much there is (downloading and installing), `third` how fast it goes (downloading). Units
  // are the service's. STATUS_ERROR replaces the last error and leaves the numbers at 0.
  int Status(int& first, int& second, int& third);

  // Tells the service to end. It does not answer.
  void Exit();

  // The failed operation's code and text, as the service gave them; 0 and an empty text when it gave none, be
  // it because the connection is gone. A success leaves them as they were.
  unsigned int LastErrorCode() const { return m_errorCode; }
  const ZEString& LastErrorText() const { return m_errorText; }

  // A message as it is. A failure shows in the transport's isConnected() only.
  void send(const ZEString& text);
  // The next message after it, whatever it is; the null string when the connection is gone.
  ZEString sendAndBlock(const ZEString& text);

  // To the standard error, with a line feed.
  static void log(const ZEString& text);

 private:
  enum class Request { CRCCheck, Download, DownloadFromFile, Install, Set };

  bool perform(Request request, const ZEString& argument = ZEString());
  void setError(const ZEString& reply);

  ZETransport* m_transport;
  unsigned int m_errorCode = 0;
  ZEString m_errorText;
};
