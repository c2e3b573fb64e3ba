// SPDX-License-Identifier: GPL-2.0-or-later
#include <libwmf/api.h>
#include <libwmf/svg.h>

#include <QRect>
#include <QRegularExpression>
#include <QtEndian>
#include <algorithm>
#include <iterator>
#include <optional>

#include "look/pictures/metafile.h"
#include "look/pictures/metafile_svg.h"
#include "platform/text.h"

namespace nautrel {
namespace {

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

}  // namespace

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

}  // namespace nautrel
