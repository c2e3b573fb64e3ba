#include "look/pictures/metafile.h"

#include <emf2svg.h>
#include <fcntl.h>
#include <libwmf/api.h>
#include <libwmf/svg.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QtEndian>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <iterator>

#include "platform/text.h"

namespace nautrel {
namespace {

constexpr qsizetype kLongestSvg = 16 << 20;
constexpr int kPatienceMs = 3000;
constexpr rlim_t kMemory = 1 << 29;

void put(QByteArray& bytes, qsizetype offset, auto number) {
  qToLittleEndian(number, bytes.data() + offset);
}

// A metafile leaves it to its player to stretch its window over the picture. Said in the metafile
// itself, it is what the library does: over a page of always the same size.
constexpr float kPage = 1024;

QByteArray stretched(const QByteArray& bytes, const QRect& window) {
  constexpr qsizetype kHeader = 18;
  constexpr quint32 kLongestInserted = 5;
  QByteArray all = bytes.mid(placeableLength(bytes));
  if (all.size() < kHeader) return {};
  const auto side = [](int number) { return static_cast<quint16>(number); };
  const quint16 records[] = {4,
                             0,
                             0x103,
                             8,
                             5,
                             0,
                             0x20B,
                             side(window.y()),
                             side(window.x()),
                             5,
                             0,
                             0x20C,
                             side(window.height()),
                             side(window.width())};
  QByteArray inserted(sizeof records, Qt::Uninitialized);
  qToLittleEndian<quint16>(records, std::size(records), inserted.data());
  all.insert(kHeader, inserted);
  put(all, 6, static_cast<quint32>(all.size() / 2));
  put(all, 12, std::max(kLongestInserted, qFromLittleEndian<quint32>(all.constData() + 12)));
  return all;
}

// Where a metafile counts upwards, the library writes rectangles of a negative height, which SVG
// does not draw.
QString upright(const QString& text) {
  static const QRegularExpression rectangle(
      R"re(<rect x="([^"]*)" y="([^"]*)" width="([^"]*)" height="([^"]*)")re");
  QString result;
  qsizetype done = 0;
  for (const auto& match : rectangle.globalMatch(text)) {
    const auto side = [&](int index) { return match.capturedView(index).toDouble(); };
    const QRectF rect = QRectF(side(1), side(2), side(3), side(4)).normalized();
    result += QStringView(text).sliced(done, match.capturedStart() - done);
    result += QString(R"re(<rect x="%1" y="%2" width="%3" height="%4")re")
                  .arg(rect.x())
                  .arg(rect.y())
                  .arg(rect.width())
                  .arg(rect.height());
    done = match.capturedEnd();
  }
  return result += QStringView(text).sliced(done);
}

/// Text as a metafile has it, in the 8-bit code page, as XML takes it.
QString escapedText(const QByteArray& bytes) {
  QString text = QString::fromStdString(
      fromCodePage({bytes.constData(), static_cast<std::size_t>(bytes.size())}));
  for (auto& character : text)
    if (character.category() == QChar::Other_Control) character = ' ';
  return text.toHtmlEscaped();
}

// The library writes the texts of a metafile as they are. Each begins on a line of its own, behind
// a single bracket, and ends with its line.
QString wellFormed(const QByteArray& svg) {
  static const QByteArray kStart = "\n\t>";
  static const QByteArray kEnd = "</text>\n";
  QString result;
  qsizetype done = 0;
  for (auto start = svg.indexOf(kStart); start >= 0; start = svg.indexOf(kStart, done)) {
    start += kStart.size();
    const auto end = svg.indexOf(kEnd, start);
    if (end < 0) break;
    result += QString::fromLatin1(svg.sliced(done, start - done)) +
              escapedText(svg.sliced(start, end - start));
    done = end;
  }
  return result += QString::fromLatin1(svg.sliced(done));
}

QByteArray svgOfWindowsMetafile(QByteArray bytes) {
  const std::optional<QRect> window = metafileWindow(bytes);
  if (window) bytes = stretched(bytes, *window);
  wmfAPI_Options options{};
  options.function = wmf_svg_function;
  wmfAPI* api = nullptr;
  wmfD_Rect box;
  if (wmf_api_create(&api, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL, &options) != wmf_E_None ||
      wmf_mem_open(api, reinterpret_cast<unsigned char*>(bytes.data()), bytes.size()) !=
          wmf_E_None ||
      wmf_scan(api, 0, &box) != wmf_E_None)
    return {};
  wmf_svg_t* svg = WMF_SVG_GetData(api);
  svg->out = wmf_stream_create(api, nullptr);
  svg->flags |= WMF_SVG_INLINE_IMAGES;
  svg->bbox = window ? wmfD_Rect{{0, 0}, {kPage, kPage}} : box;
  wmf_display_size(api, &svg->width, &svg->height, 96, 96);
  if (wmf_play(api, 0, &box) != wmf_E_None) return {};
  char* text = nullptr;
  unsigned long length = 0;
  wmf_stream_destroy(api, svg->out, &text, &length);
  return upright(wellFormed({text, static_cast<qsizetype>(length)})).toUtf8();
}

QByteArray svgOfEnhancedMetafile(QByteArray bytes) {
  generatorOptions options{};
  char nameSpace[] = "";
  options.nameSpace = nameSpace;
  options.svgDelimiter = true;
  options.emfplus = true;
  char* text = nullptr;
  size_t length = 0;
  if (emf2svg(bytes.data(), static_cast<size_t>(bytes.size()), &text, &length, &options) != 1)
    return {};
  return {text, static_cast<qsizetype>(length)};
}

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
