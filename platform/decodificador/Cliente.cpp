#include "platform/decodificador/Cliente.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace pixmosa {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kPaso{15};

// Only what leads to the user's own fonts.
std::vector<std::string> Entorno() {
  std::vector<std::string> lines{"LC_ALL=C.UTF-8"};
  for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
    if (const char* value = std::getenv(name)) lines.push_back(std::string(name) + "=" + value);
  return lines;
}

// Starts the program with `socket` as its standard input and output and no other file, and `word`, where
// there is one, as its argument; its number, or -1.
pid_t Lanzar(const std::filesystem::path& program, int socket, std::string word) {
  posix_spawn_file_actions_t files;
  posix_spawnattr_t how;
  if (posix_spawn_file_actions_init(&files) != 0) return -1;
  if (posix_spawnattr_init(&how) != 0) {
    posix_spawn_file_actions_destroy(&files);
    return -1;
  }
  posix_spawn_file_actions_adddup2(&files, socket, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&files, socket, STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
  posix_spawn_file_actions_addchdir_np(&files, "/");
  sigset_t none, all;
  sigemptyset(&none);
  sigfillset(&all);
  posix_spawnattr_setsigmask(&how, &none);
  posix_spawnattr_setsigdefault(&how, &all);
  posix_spawnattr_setflags(&how, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

  std::string path = program.string();
  char* argv[] = {path.data(), word.empty() ? nullptr : word.data(), nullptr};
  std::vector<std::string> lines = Entorno();
  std::vector<char*> environment;
  environment.reserve(lines.size() + 1);
  for (std::string& line : lines) environment.push_back(line.data());
  environment.push_back(nullptr);
  pid_t pid = -1;
  const int error = posix_spawn(&pid, path.c_str(), &files, &how, argv, environment.data());
  posix_spawnattr_destroy(&how);
  posix_spawn_file_actions_destroy(&files);
  return error == 0 ? pid : -1;
}

// The running process and our end of its socket; both are gone with it.
class Proceso {
 public:
  explicit Proceso(const std::filesystem::path& program, const char* word = "") {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
    socket_ = ends[0];
    pid_ = Lanzar(program, ends[1], word);
    ::close(ends[1]);
  }
  ~Proceso() {
    if (socket_ >= 0) ::close(socket_);
    if (pid_ <= 0) return;
    ::kill(pid_, SIGKILL);
    while (::waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  Proceso(const Proceso&) = delete;
  Proceso& operator=(const Proceso&) = delete;

  bool EnMarcha() const { return pid_ > 0; }
  int Enchufe() const { return socket_; }

  // After its end of the socket closed without an answer: what ended it.
  Razon PorQueCayo() {
    for (int i = 0; i < 200; ++i, std::this_thread::sleep_for(milliseconds(1))) {
      int status = 0;
      if (::waitpid(pid_, &status, WNOHANG) != pid_) continue;
      pid_ = -1;
      // The limit of processor time.
      if (WIFSIGNALED(status) && (WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGKILL))
        return Razon::Tarde;
      return WIFEXITED(status) && WEXITSTATUS(status) == kNoArranca ? Razon::Insegura : Razon::Caida;
    }
    return Razon::Caida;
  }

 private:
  int socket_ = -1;
  pid_t pid_ = -1;
};

// Sends what the socket takes of the rest; an empty rest closes that direction.
void Enviar(int socket, std::string_view& rest) {
  const ssize_t n = ::send(socket, rest.data(), rest.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  if (n > 0) rest.remove_prefix(static_cast<std::size_t>(n));
  // A process that takes no more may still answer why.
  if (n < 0 && errno != EAGAIN && errno != EINTR) rest = {};
  if (rest.empty()) ::shutdown(socket, SHUT_WR);
}

// Takes what has come; false where nothing more comes or is wanted.
template <typename Respuesta>
bool Recibir(int socket, Respuesta& answer) {
  const std::span<std::byte> gap = answer.Hueco();
  if (gap.empty()) return false;
  const ssize_t n = ::recv(socket, gap.data(), gap.size(), MSG_DONTWAIT);
  if (n > 0) answer.Llegan(static_cast<std::size_t>(n));
  return n > 0 || (n < 0 && (errno == EAGAIN || errno == EINTR));
}

// Sends the bytes and takes an answer until it is whole or cannot become so. Hecha where the time sufficed,
// else why not.
template <typename Respuesta>
Razon Atender(const Proceso& process, std::string_view& bytes, Respuesta& answer,
              const std::function<void()>& mientras, milliseconds plazo) {
  const Clock::time_point end = Clock::now() + plazo;
  Clock::time_point next = Clock::now() + kPaso;
  for (bool more = !answer.Hueco().empty(); more;) {
    const Clock::time_point now = Clock::now();
    if (now >= end) return Razon::Tarde;
    if (mientras && now >= next) {
      mientras();
      next = Clock::now() + kPaso;
    }
    const auto wait = std::chrono::ceil<milliseconds>((mientras ? std::min(next, end) : end) - Clock::now());
    pollfd p{process.Enchufe(), static_cast<short>(bytes.empty() ? POLLIN : POLLIN | POLLOUT), 0};
    if (::poll(&p, 1, static_cast<int>(std::max<std::int64_t>(0, wait.count()))) < 0 && errno != EINTR)
      return Razon::Caida;
    if (p.revents & POLLOUT) Enviar(process.Enchufe(), bytes);
    if (p.revents & (POLLIN | POLLHUP | POLLERR)) more = Recibir(process.Enchufe(), answer);
  }
  return Razon::Hecha;
}

}  // namespace

std::filesystem::path ProgramaDecodificador() {
  namespace fs = std::filesystem;
  constexpr const char* kName = "pixmosa-decodificador";
  std::error_code ec;
  const fs::path folder = fs::read_symlink("/proc/self/exe", ec).parent_path();
  fs::path beside = folder / kName;
  if (fs::exists(beside, ec)) return beside;
  return folder.parent_path() / "libexec" / "pixmosa" / kName;
}

Decodificada Decodificar(const std::filesystem::path& programa, std::string_view bytes,
                         const std::function<void()>& mientras, milliseconds plazo) {
  if (bytes.size() > kMasBytesAparte) return {Razon::SinMemoria};
  Proceso process(programa);
  if (!process.EnMarcha()) return {Razon::Ausente};
  Respuesta answer;
  if (const Razon r = Atender(process, bytes, answer, mientras, plazo); r != Razon::Hecha) return {r};
  Decodificada result = answer.Tomar();
  if (result.razon == Razon::Caida) result.razon = process.PorQueCayo();
  return result;
}

struct PeliculaAparte::Proceso : pixmosa::Proceso {
  using pixmosa::Proceso::Proceso;
};

PeliculaAparte::PeliculaAparte(const std::filesystem::path& programa, std::string bytes,
                               std::function<void()> mientras, milliseconds plazo)
    : bytes_(std::move(bytes)),
      resto_(bytes_),
      mientras_(std::move(mientras)),
      plazo_(plazo),
      proceso_(std::make_unique<Proceso>(programa, kPedirPelicula)) {}

PeliculaAparte::~PeliculaAparte() = default;

Decodificada PeliculaAparte::Siguiente() {
  if (bytes_.size() > kMasBytesAparte) return {Razon::SinMemoria};
  if (!proceso_->EnMarcha()) return {Razon::Ausente};
  RespuestaDeFotograma answer;
  if (const Razon r = Atender(*proceso_, resto_, answer, mientras_, plazo_); r != Razon::Hecha) return {r};
  Ritmo pace;
  Decodificada result = answer.Tomar(pace);
  if (result.razon == Razon::Caida) result.razon = proceso_->PorQueCayo();
  milisegundos_ = pace.milisegundos;
  if (ConPixeles(result.razon)) cuantos_ = pace.cuantos;
  return result;
}

}  // namespace pixmosa
