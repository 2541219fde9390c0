#include "dienste/kind_prozess.h"

#include <chrono>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quor::ui {

namespace {

// In the child: standard input from nowhere, output to the named files or nowhere.
void Umleiten(const ProzessAuftrag& a) {
  const int leer = open("/dev/null", O_RDWR);
  auto ziel = [leer](const std::string& datei) {
    return datei.empty() ? leer : open(datei.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  };
  if (leer >= 0) dup2(leer, STDIN_FILENO);
  const int aus = ziel(a.ausgabeDatei), fehler = ziel(a.fehlerDatei);
  if (aus >= 0) dup2(aus, STDOUT_FILENO);
  if (fehler >= 0) dup2(fehler, STDERR_FILENO);
}

[[noreturn]] void KindAusfuehren(const ProzessAuftrag& a, std::vector<char*>& argv) {
  Umleiten(a);
  if (!a.arbeitsVerzeichnis.empty() && chdir(a.arbeitsVerzeichnis.c_str()) != 0) _exit(127);
  execv(argv[0], argv.data());
  _exit(127);
}

int ExitCode(int wstatus) {
  if (WIFEXITED(wstatus)) return WEXITSTATUS(wstatus);
  return WIFSIGNALED(wstatus) ? 128 + WTERMSIG(wstatus) : -1;
}

} // namespace

ProzessStatus StarteKindProzess(const ProzessAuftrag& auftrag) {
  ProzessStatus status;
  if (access(auftrag.programm.c_str(), X_OK) != 0) return status;
  std::vector<std::string> argumente{auftrag.programm};
  argumente.insert(argumente.end(), auftrag.argumente.begin(), auftrag.argumente.end());
  std::vector<char*> argv;
  for (std::string& a : argumente)
    argv.push_back(a.data());
  argv.push_back(nullptr);

  const bool abgekoppelt = auftrag.wartenMs < 0;
  const pid_t pid = fork();
  if (pid < 0) return status;
  if (pid == 0) {
    // A detached child is the grandchild: its parent ends at once and is reaped below.
    if (abgekoppelt && fork() != 0) _exit(0);
    KindAusfuehren(auftrag, argv);
  }
  int wstatus = 0;
  if (abgekoppelt) {
    waitpid(pid, &wstatus, 0);
    return {ProzessErgebnis::Beendet, 0};
  }
  const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(auftrag.wartenMs);
  for (;;) {
    const pid_t r = waitpid(pid, &wstatus, WNOHANG);
    if (r == pid) return {ProzessErgebnis::Beendet, ExitCode(wstatus)};
    if (r < 0) return status;
    if (std::chrono::steady_clock::now() >= ende) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  // Out of time: the child this run started is ended and reaped.
  kill(pid, SIGKILL);
  waitpid(pid, &wstatus, 0);
  status.ergebnis = ProzessErgebnis::ZeitUeberschritten;
  return status;
}

} // namespace quor::ui
