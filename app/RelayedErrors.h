// What the process of a server says on standard error, handed on line by line
// with the server's name in front.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace strake::app {

class RelayedErrors {
 public:
  // A longer line ends with "..." there. What comes when so much is handed on is
  // left out, which is said.
  static constexpr std::size_t kMostLineBytes = std::size_t{64} * 1024;
  static constexpr std::size_t kMostBytes = std::size_t{16} * 1024 * 1024;

  explicit RelayedErrors(std::string server) : fServer(std::move(server)) {}

  // Bytes as they come. What the command says of itself is kept until something
  // follows: the last of it can be why it failed.
  void Take(std::string_view bytes);
  // What is kept, instead of handing it on.
  [[nodiscard]] std::optional<std::string> TakeMessage();
  // Nothing follows.
  void End();

  // On the command's own part: "strake: SERVER: TEXT".
  void Tell(const std::string& text) const;

 private:
  void EndLine();
  void Relay(const std::string& line);
  [[nodiscard]] bool HasRoom(std::size_t size);

  std::string fServer;
  std::string fLine;
  bool fIsCut = false;
  std::optional<std::string> fMessage;
  std::size_t fRelayed = 0;
};

}  // namespace strake::app
