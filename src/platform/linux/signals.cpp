// SIGTERM, SIGINT, SIGHUP and SIGCHLD by signalfd.
#include "platform/linux/signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

namespace orvanta {

Signals::Signals() {
  sigset_t wanted;
  sigemptyset(&wanted);
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGCHLD}) sigaddset(&wanted, number);
  if (::pthread_sigmask(SIG_BLOCK, &wanted, nullptr) == 0) fd_ = UniqueFd(::signalfd(-1, &wanted, SFD_CLOEXEC | SFD_NONBLOCK));
}

Signals::What Signals::next() {
  signalfd_siginfo info{};
  if (::read(fd_.get(), &info, sizeof info) != sizeof info) return What::None;
  return info.ssi_signo == SIGCHLD ? What::ChildEnded : What::End;
}

}  // namespace orvanta
