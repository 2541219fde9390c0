// The end of a run with an exit code: 2 for usage and input errors, 1 for a calculation that failed.
#pragma once

#include <stdexcept>
#include <string>

namespace quor::cli {

enum ExitCode : int { ExitOK = 0, ExitRechnung = 1, ExitEingabe = 2 };

// Thrown by the commands; main prints the text on stderr and ends with the code.
class CliFehler : public std::runtime_error {
public:
  CliFehler(int code, const std::string& text) : std::runtime_error(text), code_(code) {}
  int Code() const { return code_; }

private:
  int code_;
};

// A usage or input error (exit code 2).
inline CliFehler Eingabefehler(const std::string& text) {
  return CliFehler(ExitEingabe, text);
}

} // namespace quor::cli
