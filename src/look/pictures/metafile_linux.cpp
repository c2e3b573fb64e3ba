// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/metafile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QPainter>
#include <QSvgRenderer>
#include <csignal>
#include <functional>

#include "look/pictures/metafile_svg.h"

namespace nautrel {
namespace {

constexpr qsizetype kLongestSvg = 16 << 20;
constexpr int kPatienceMs = 3000;
constexpr rlim_t kMemory = 1 << 29;

void limit(__rlimit_resource resource, rlim_t most) {
  const rlimit both{most, most};
  setrlimit(resource, &both);
}

// What runs apart may write to no one but its pipe, keeps nothing of the program open, such as the
// lock of the logbook, and may not take the machine along.
void restrain(int pipe) {
  const auto own = static_cast<unsigned>(pipe);
  if (own > STDERR_FILENO + 1) close_range(STDERR_FILENO + 1, own - 1, 0);
  close_range(own + 1, ~0U, 0);
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_CPU, kPatienceMs / 1000);
  limit(RLIMIT_DATA, kMemory);
}

// Never returns and lets no exception through: there must not be a second program that goes on.
[[noreturn]] void convertAndLeave(int pipe, const std::function<QByteArray()>& convert) noexcept {
  restrain(pipe);
  const QByteArray bytes = convert();
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t written =
        write(pipe, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
    if (written <= 0) break;
    done += written;
  }
  _exit(0);
}

QByteArray readInTime(int pipe) {
  const QDeadlineTimer deadline(kPatienceMs);
  QByteArray all;
  char part[65536];
  pollfd ready{pipe, POLLIN, 0};
  while (all.size() <= kLongestSvg && poll(&ready, 1, static_cast<int>(deadline.remainingTime()))) {
    const ssize_t length = read(pipe, part, sizeof part);
    if (length <= 0) return all;
    all.append(part, length);
  }
  return {};
}

// The metafile libraries trust their input: rubbish makes them crash, spin or eat memory. In a
// process of their own that costs a picture, not the diver's logbook.
QByteArray runApart(const std::function<QByteArray()>& convert) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return {};
  const pid_t child = fork();
  if (child == 0) convertAndLeave(ends[1], convert);
  close(ends[1]);
  QByteArray result;
  if (child > 0) {
    result = readInTime(ends[0]);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
  }
  close(ends[0]);
  return result;
}

}  // namespace

QImage drawMetafile(const QByteArray& bytes, MetafileKind kind, QSize largest) {
  QSvgRenderer svg(runApart([&] {
    return kind == MetafileKind::Windows ? svgOfWindowsMetafile(bytes)
                                         : svgOfEnhancedMetafile(bytes);
  }));
  QSize size = metafileSize(bytes, kind);
  if (size.isEmpty()) size = svg.defaultSize();
  if (!svg.isValid() || size.isEmpty()) return {};
  QImage image(size.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1}), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  svg.render(&painter);
  return image;
}

}  // namespace nautrel
