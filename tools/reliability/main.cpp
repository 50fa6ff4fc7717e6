#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <stdexcept>
#include <thread>
#include <utility>

#include "deeds.h"
#include "verdict.h"

/// Does each deed once undisturbed, then many times with a kill at a random moment of it, and counts what stands on the
/// disk afterwards: reliability [KILLS_PER_DEED [SEED]].

using namespace vorelio;
using namespace vorelio::reliability;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::microseconds;

namespace {

/// A process that has everything ready for a deed, and waits for the word.
class Worker {
 public:
  explicit Worker(const Deed& deed) {
    if (pipe(to_) != 0 || pipe(from_) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ < 0) throw std::runtime_error("no process");
    if (process_ == 0) Work(deed);
    close(to_[0]);
    close(from_[1]);
    char byte;
    while (read(from_[0], &byte, 1) == 1 && byte != '\n') folder_ += byte;
    if (folder_.empty()) throw std::runtime_error("the process for \"" + deed.name + "\" isn't ready");
  }
  ~Worker() {
    Kill();
    close(to_[1]);
    close(from_[0]);
    std::filesystem::remove_all(folder_);
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  const std::string& Folder() const { return folder_; }

  void Go() { static_cast<void>(write(to_[1], "g", 1)); }
  /// Waits for the end of the deed; false if the process has died over it.
  bool Done() {
    char byte;
    return read(from_[0], &byte, 1) == 1;
  }
  void Kill() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(std::exchange(process_, 0), nullptr, 0);
  }

 private:
  [[noreturn]] void Work(const Deed& deed) {
    close(to_[1]);
    close(from_[0]);
    bench::StationRun run(kContacts, deed.mode);
    if (deed.prepare) deed.prepare(run);
    const std::string folder = run.Run().Chemin_Programme() + "\n";
    static_cast<void>(write(from_[1], folder.data(), folder.size()));
    char byte;
    if (read(to_[0], &byte, 1) == 1) {
      deed.act(run);
      static_cast<void>(write(from_[1], "d", 1));
      // The folder is the other process's to look at and to remove.
      pause();
    }
    _exit(0);
  }

  int to_[2], from_[2];
  pid_t process_ = 0;
  std::string folder_;
};

/// What the deed does when it is left alone.
struct Undisturbed {
  Files before, after;
  Microseconds time;
};

Undisturbed Observe(const Deed& deed) {
  Worker worker(deed);
  Undisturbed seen;
  seen.before = ReadFolder(worker.Folder());
  const auto begin = Clock::now();
  worker.Go();
  if (!worker.Done()) throw std::runtime_error("\"" + deed.name + "\" has failed");
  seen.time = std::chrono::duration_cast<Microseconds>(Clock::now() - begin);
  seen.after = ReadFolder(worker.Folder());
  return seen;
}

void Try(const Deed& deed, int kills, std::mt19937& dice) {
  // The shortest of some times: a machine that was busy with something else would spread the kills over idle moments.
  Undisturbed seen = Observe(deed);
  for (int i = 0; i < 7; ++i) seen.time = std::min(seen.time, Observe(deed).time);
  std::map<std::string, std::map<std::string, int>> counts;
  std::uniform_int_distribution<long> moment(0, seen.time.count() * 12 / 10);
  for (int i = 0; i < kills; ++i) {
    Worker worker(deed);
    const auto wait = Microseconds(moment(dice));
    worker.Go();
    std::this_thread::sleep_for(wait);
    worker.Kill();
    for (const auto& [name, verdict] : Judge(seen.before, seen.after, ReadFolder(worker.Folder())))
      ++counts[name][verdict];
  }
  std::printf("%s: %d kills within %.1f ms\n", deed.name.c_str(), kills, static_cast<double>(seen.time.count()) / 1000);
  for (const auto& [name, verdicts] : counts)
    for (const auto& [verdict, count] : verdicts)
      std::printf("  %-24s %-26s %4d\n", name.c_str(), verdict.c_str(), count);
}

}  // namespace

int main(int argc, char** argv) {
  const int kills = argc > 1 ? std::atoi(argv[1]) : 30;
  std::mt19937 dice(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1);
  for (const Deed& deed : Deeds()) Try(deed, kills, dice);
  return 0;
}
