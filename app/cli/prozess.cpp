#include "cli/prozess.h"

#include <chrono>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quor::cli {

ui::ProzessStatus StarteKindProzess(const ui::ProzessAuftrag& auftrag) {
  ui::ProzessStatus status;
  if (access(auftrag.programm.c_str(), X_OK) != 0) return status;
  std::vector<std::string> argumente{auftrag.programm};
  argumente.insert(argumente.end(), auftrag.argumente.begin(), auftrag.argumente.end());
  std::vector<char*> argv;
  for (std::string& a : argumente)
    argv.push_back(a.data());
  argv.push_back(nullptr);

  const pid_t pid = fork();
  if (pid < 0) return status;
  if (pid == 0) {
    // The child: its own directory, no terminal output (stdout carries this program's results).
    const int leer = open("/dev/null", O_RDWR);
    if (leer >= 0) {
      dup2(leer, STDIN_FILENO);
      dup2(leer, STDOUT_FILENO);
      dup2(leer, STDERR_FILENO);
    }
    if (!auftrag.arbeitsVerzeichnis.empty() && chdir(auftrag.arbeitsVerzeichnis.c_str()) != 0) _exit(127);
    execv(argv[0], argv.data());
    _exit(127);
  }
  if (auftrag.wartenMs < 0) {
    status.ergebnis = ui::ProzessErgebnis::Beendet;
    status.exitCode = 0;
    return status;
  }
  const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(auftrag.wartenMs);
  int wstatus = 0;
  for (;;) {
    const pid_t r = waitpid(pid, &wstatus, WNOHANG);
    if (r == pid) {
      status.ergebnis = ui::ProzessErgebnis::Beendet;
      status.exitCode = WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1;
      return status;
    }
    if (r < 0) return status;
    if (std::chrono::steady_clock::now() >= ende) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  // Out of time: the child this run started is ended and reaped.
  kill(pid, SIGKILL);
  waitpid(pid, &wstatus, 0);
  status.ergebnis = ui::ProzessErgebnis::ZeitUeberschritten;
  return status;
}

} // namespace quor::cli
