#include "support/logging_disk.h"

#include <algorithm>
#include <iterator>

namespace vorelio::tests {

LoggingDisk::LoggingDisk(Disk& inner, std::string folder) : inner_(inner), folder_(std::move(folder)) {}

std::string LoggingDisk::ReadAll(const std::string& path) {
  Note("read " + Short(path), path);
  return inner_.ReadAll(path);
}

void LoggingDisk::WriteAll(const std::string& path, std::string_view data) {
  Note("write " + Short(path), path);
  const auto fault = WriteFault();
  inner_.WriteAll(path, fault ? data.substr(0, fault->bytes) : data);
  if (fault) throw Erreur_Execution(fault->error, path);
}

void LoggingDisk::Append(const std::string& path, std::string_view data) {
  Note("append " + Short(path), path);
  const auto fault = WriteFault();
  inner_.Append(path, fault ? data.substr(0, fault->bytes) : data);
  if (fault) throw Erreur_Execution(fault->error, path);
}

void LoggingDisk::Copy(const std::string& from, const std::string& to) {
  Note("copy " + Short(from) + " " + Short(to), from);
  inner_.Copy(from, to);
}

void LoggingDisk::Delete(const std::string& path) {
  Note("delete " + Short(path), path);
  inner_.Delete(path);
}

bool LoggingDisk::Exists(const std::string& path) {
  Note("exists " + Short(path), path);
  return inner_.Exists(path);
}

std::uint64_t LoggingDisk::Size(const std::string& path) {
  Note("size " + Short(path), path);
  return inner_.Size(path);
}

std::vector<std::string> LoggingDisk::Changes() const {
  std::vector<std::string> changes;
  std::copy_if(log_.begin(), log_.end(), std::back_inserter(changes), [](const std::string& access) {
    return !access.starts_with("read ") && !access.starts_with("exists ") && !access.starts_with("size ");
  });
  return changes;
}

void LoggingDisk::FailAt(int nth, Erreur error) { access_fault_ = {nth, 0, error}; }

void LoggingDisk::FailOn(std::string_view words, Erreur error) { faults_on_.emplace_back(words, error); }

void LoggingDisk::FailWriteAfter(int nth, std::size_t bytes, Erreur error) { write_fault_ = {nth, bytes, error}; }

void LoggingDisk::Mend() {
  access_fault_.reset();
  write_fault_.reset();
  faults_on_.clear();
}

std::string LoggingDisk::Short(const std::string& path) const {
  return path.starts_with(folder_ + "/") ? path.substr(folder_.size() + 1) : path;
}

void LoggingDisk::Note(const std::string& words, const std::string& path) {
  log_.push_back(words);
  if (access_fault_ && --access_fault_->in == 0) {
    const Erreur error = access_fault_->error;
    access_fault_.reset();
    throw Erreur_Execution(error, path);
  }
  for (const auto& [start, error] : faults_on_)
    if (words.starts_with(start)) throw Erreur_Execution(error, path);
}

std::optional<LoggingDisk::Fault> LoggingDisk::WriteFault() {
  if (!write_fault_ || --write_fault_->in > 0) return std::nullopt;
  const auto fault = write_fault_;
  write_fault_.reset();
  return fault;
}

}  // namespace vorelio::tests
