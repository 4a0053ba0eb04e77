#pragma once

#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/temporary_folder.h"

namespace test {

/// A PostgreSQL server of its own: in a folder of its own, reached through a socket in that folder and from
/// nowhere else, as a user without rights; stopped with its owner, even when that dies.
class PostgresServer {
 public:
  /// The folder of the server's programs; empty where the package is not installed.
  static std::filesystem::path programs() {
    std::error_code ignored;
    for (const auto& version : std::filesystem::directory_iterator("/usr/lib/postgresql", ignored))
      if (std::filesystem::exists(version.path() / "bin/initdb", ignored)) return version.path() / "bin";
    return {};
  }

  /// Whether its commits wait for the disk, as those of a working server do. Where the machine itself never
  /// fails they need not: what a dying server has written is there.
  enum class Disk { AwaitedByCommits, LeftToTheSystem };

  explicit PostgresServer(Disk disk = Disk::AwaitedByCommits) : disk_(disk) {
    const Account account;
    if (account.root && chown(folder_.path().c_str(), account.user, account.group) != 0)
      throw std::runtime_error("cannot hand over " + folder_.path());
    // A Japanese collation, so that an order by bytes is seen to be the house's own.
    const int made =
        wait(start({program("initdb"), "-D", data(), "-A", "trust", "-U", user, "-E", "UTF8", "--no-sync",
                    "--locale=C.UTF-8", "--locale-provider=icu", "--icu-locale=ja"}));
    if (made != 0) throw std::runtime_error("initdb has failed");
    // The client is somebody else: the folder is opened for him.
    std::filesystem::permissions(folder_.path(), std::filesystem::perms::others_exec,
                                 std::filesystem::perm_options::add);
    startAgain();
  }
  ~PostgresServer() { stopAtOnce(); }
  PostgresServer(const PostgresServer&) = delete;
  PostgresServer& operator=(const PostgresServer&) = delete;

  /// The folder of the socket by which it is reached.
  std::string folder() const { return folder_.path(); }

  /// Ends it as a failing machine would, whatever its clients are doing; it does not look after its files.
  void stopAtOnce() {
    kill(server_, SIGQUIT);
    wait(server_);
  }
  /// Starts it, after it was stopped: it mends its files and answers.
  void startAgain() {
    server_ = start({program("postgres"), "-D", data(), "-k", folder_.path(), "-c", "listen_addresses=", "-c",
                     "unix_socket_permissions=0777", "-c",
                     disk_ == Disk::AwaitedByCommits ? "fsync=on" : "fsync=off"});
    awaitReady();
  }

  /// Makes a new, empty database and returns the text of a file data source for it.
  std::string newDatabase() {
    const std::string name = "job" + std::to_string(++databases_);
    if (wait(psql("postgres", "CREATE DATABASE " + name)) != 0)
      throw std::runtime_error("no database " + name);
    return "[ODBC]\nDRIVER=PostgreSQL Unicode\nSERVER=" + folder_.path() + "\nDATABASE=" + name +
           "\nUID=" + user + "\n";
  }

  /// Runs statements of the server's own SQL in the database of a data source that newDatabase has made.
  void run(const std::string& source, const std::string& sql) const {
    const std::string before = "DATABASE=";
    const std::size_t name = source.find(before) + before.size();
    if (wait(psql(source.substr(name, source.find('\n', name) - name), sql)) != 0)
      throw std::runtime_error("refused: " + sql);
  }

 private:
  static constexpr const char* user = "seikahyou";

  /// Whom the server runs as: root may not.
  struct Account {
    Account() {
      const passwd* nobody = getpwnam("nobody");
      if (!root || nobody == nullptr) return;
      user = nobody->pw_uid;
      group = nobody->pw_gid;
    }
    bool root = geteuid() == 0;
    uid_t user = geteuid();
    gid_t group = getegid();
  };

  std::string program(const char* name) const { return (programs() / name).string(); }
  std::string data() const { return folder_.path("data"); }

  pid_t psql(const std::string& database, const std::string& sql) const {
    return start({program("psql"), "-q", "-v", "ON_ERROR_STOP=1", "-h", folder_.path(), "-U", user, "-d",
                  database, "-c", sql});
  }

  void awaitReady() const {
    for (int i = 0; i < 200; ++i) {
      if (wait(start({program("pg_isready"), "-q", "-h", folder_.path()})) == 0) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    throw std::runtime_error("the PostgreSQL server does not answer");
  }

  /// Starts a program as that user, its output in a file of the folder.
  pid_t start(const std::vector<std::string>& words) const {
    std::vector<char*> arguments;
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const Account account;
    const std::string log = folder_.path("log");
    const pid_t child = fork();
    if (child != 0) return child;
    if (account.root && (setgid(account.group) != 0 || setuid(account.user) != 0)) _exit(126);
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    if (freopen(log.c_str(), "a", stdout) == nullptr || dup2(STDOUT_FILENO, STDERR_FILENO) < 0) _exit(125);
    if (chdir("/") != 0) _exit(124);
    execv(arguments[0], arguments.data());
    _exit(127);
  }

  static int wait(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
  }

  Disk disk_;
  TemporaryFolder folder_;
  pid_t server_ = 0;
  int databases_ = 0;
};

}  // namespace test
