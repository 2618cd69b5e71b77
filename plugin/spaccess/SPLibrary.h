// The closed SP driver library: one singleton that finds service processors
// and carries commands to them, and the two kinds of command.
#pragma once

// Open a command to the library that carries it; the plug-in only makes
// commands.
struct dotCmdContent;
struct KestleCmdContent;

// A command to an Orlo adapter. The identifier and the extra data must outlive
// the command.
class dotCmd {
 public:
  dotCmd(unsigned char commandClass, int identifierLength, int secondLength,
         const unsigned char* identifier, const unsigned char* extraData);
  dotCmd(const dotCmd&) = delete;
  dotCmd& operator=(const dotCmd&) = delete;
  ~dotCmd();

 private:
  friend struct dotCmdContent;
  const unsigned char* fIdentifier;
  const unsigned char* fExtraData;
  int fIdentifierLength;
  int fSecondLength;
  unsigned char fCommandClass;
};

// A command to a Tavit processor.
class KestleCmd {
 public:
  KestleCmd(unsigned char totalLength, unsigned char commandCode, unsigned char expectedCode,
            unsigned char checksum, unsigned char* commandData, int commandDataLength,
            bool acknowledge, bool isRead);
  KestleCmd(const KestleCmd&) = delete;
  KestleCmd& operator=(const KestleCmd&) = delete;
  ~KestleCmd();

 private:
  friend struct KestleCmdContent;
  unsigned char* fCommandData;
  int fCommandDataLength;
  unsigned char fTotalLength;
  unsigned char fCommandCode;
  unsigned char fExpectedCode;
  unsigned char fChecksum;
  bool fAcknowledge;
  bool fIsRead;
};

namespace NVELKZEV20 {

class SPLibrary {
 public:
  // The process-wide instance, owned by the library.
  static SPLibrary* GetSplibraryInstance(int reserved);

  bool isDotcommand();
  bool isKestle();
  bool isQmvStop();
  bool isDornlibrary();
  bool checkSPComm();
  int discoverSPs();

  // Writes at most `replySize` bytes to `reply` and the number of reply bytes,
  // as the service processor reports it, to `replyLength`.
  bool sendDotCommand(dotCmd* command, unsigned char* reply, int* replyLength, int spInstance,
                      int replySize);

  // As above; the reply buffer holds 255 bytes.
  bool sendKestleCommand(KestleCmd* command, int* replyLength, unsigned char* reply);

  // Fills three buffers of 4096 bytes with the commands that the SP supports.
  bool buildDotCommandList(unsigned char* first, unsigned char* second, unsigned char* third);

  // The number of instances of a component, out of those buffers; -1 on failure.
  int getComponentdotCmdList(unsigned char* identifier, int identifierLength, unsigned char* first,
                             unsigned char* second, unsigned char* third);
};

}  // namespace NVELKZEV20
