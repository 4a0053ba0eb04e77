#include "jobs/recent.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <optional>
#include <utility>

#include "jobs/settings_key.h"
#include "platform/settings.h"

namespace jobs {
namespace {

constexpr const char* prefix = "recent.";
constexpr char between = '\t';
constexpr std::size_t timeLength = 19;  // YYYY-MM-DD HH:MM:SS

std::string keyOf(const std::string& path) { return settingsKey(prefix, path); }

/// The path comes last: it may hold anything.
std::string textOf(const RecentJob& job) {
  return job.opened + between + job.engine + between + job.jobId + between + job.grade + between + job.path;
}

std::optional<RecentJob> jobOf(std::string text) {
  std::array<std::string, 4> parts;
  for (std::string& part : parts) {
    const std::size_t end = text.find(between);
    if (end == std::string::npos) return std::nullopt;
    part = text.substr(0, end);
    text.erase(0, end + 1);
  }
  if (text.empty() || parts[0].size() != timeLength) return std::nullopt;
  return RecentJob{text, parts[1], parts[2], parts[3], parts[0]};
}

}  // namespace

RecentJobs::RecentJobs(std::string settingsFile) : file_(std::move(settingsFile)) {}

std::vector<RecentJob> RecentJobs::list() const {
  const platform::Settings settings(file_);
  std::vector<RecentJob> jobs;
  for (const std::string& key : settings.keys(prefix)) {
    auto job = jobOf(settings.text(key));
    if (job && keyOf(job->path) == key) jobs.push_back(std::move(*job));
  }
  std::stable_sort(jobs.begin(), jobs.end(),
                   [](const RecentJob& a, const RecentJob& b) { return a.opened > b.opened; });
  return jobs;
}

bool RecentJobs::remember(const RecentJob& job) {
  platform::Settings settings(file_);
  bool written = settings.set(keyOf(job.path), textOf(job));
  const std::vector<RecentJob> all = list();
  for (std::size_t at = most; at < all.size(); ++at) written = settings.erase(keyOf(all[at].path)) && written;
  return written;
}

bool RecentJobs::forget(const std::string& path) { return platform::Settings(file_).erase(keyOf(path)); }

std::string timeNow() {
  const std::time_t now = std::time(nullptr);
  std::array<char, timeLength + 1> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&now));
  return text.data();
}

}  // namespace jobs
