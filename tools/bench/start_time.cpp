#include "start_time.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "doubles/scratch_folder.h"
#include "table.h"

namespace vorelio::bench {

namespace {

/// Runs the companion that starts the program, and gives what it prints.
std::string RunStart(std::vector<std::string> words) {
  static const std::string program =
      (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "bench_start").string();
  words.insert(words.begin(), program);
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  pid_t child = 0;
  const int refused = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);

  std::string output;
  std::array<char, 256> buffer{};
  for (ssize_t count = 0; refused == 0 && (count = read(ends[0], buffer.data(), buffer.size())) > 0;)
    output.append(buffer.data(), static_cast<std::size_t>(count));
  close(ends[0]);
  int status = 0;
  if (refused != 0 || waitpid(child, &status, 0) != child || status != 0)
    throw std::runtime_error(program + " has failed");
  return output;
}

}  // namespace

StartCost MeasureStart(int contacts, int rounds) {
  const doubles::ScratchFolder folder;
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  // The offscreen platform warns of what it can't do.
  setenv("QT_LOGGING_RULES", "*.warning=false", 1);
  setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
  RunStart({"prepare", folder.Path(), std::to_string(contacts)});
  std::vector<double> inside, mebibytes;
  const Work start{{}, [&] {
                     std::istringstream printed(RunStart({"start", folder.Path()}));
                     printed >> inside.emplace_back() >> mebibytes.emplace_back();
                   }};
  const double outside = Medians(rounds, {start}).front();
  inside.erase(inside.begin());
  return {outside, Median(inside), Median(mebibytes)};
}

}  // namespace vorelio::bench
