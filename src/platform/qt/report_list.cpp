#include "platform/qt/report_list.h"

#include <QPainter>
#include <QTextLayout>
#include <numeric>

#include "platform/qt/convert.h"

namespace nautrel {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerMillimetre = 1440 / 25.4;

// In points.
constexpr double kTitleSize = 20;
constexpr double kRunningTitleSize = 10;
constexpr double kCellPadding = 6;
constexpr double kBelowTitle = 8;

// Of the height of a line.
constexpr double kRowPadding = 0.45;
constexpr double kHeadPadding = 0.8;
constexpr double kFooterHeight = 2.2;

const QColor kInk(0x1B, 0x2A, 0x34);
const QColor kQuiet(0x5B, 0x6B, 0x75);
const QColor kAccent(0x0F, 0x6E, 0x8C);
const QColor kHeadBand(0xE3, 0xEE, 0xF3);
const QColor kShade(0xF4, 0xF8, 0xFA);

QFont twipsFont(double points, QFont::Weight weight = QFont::Normal) {
  QFont font;
  font.setPixelSize(qRound(points * kTwipsPerPoint));
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

double widthOf(const ListLayout& layout) {
  return std::accumulate(
      layout.columns.begin(), layout.columns.end(), 0.0,
      [](double sum, const ListLayout::Column& column) { return sum + column.width; });
}

double indent(ListLayout::Alignment alignment, double space) {
  switch (alignment) {
    case ListLayout::Alignment::Right:
      return space;
    case ListLayout::Alignment::Center:
      return space / 2;
    default:
      return 0;
  }
}

void drawLine(QPainter& painter, const QRectF& across, double y, double points) {
  painter.fillRect(QRectF(across.left(), y, across.width(), points * kTwipsPerPoint), kAccent);
}

}  // namespace

QPageLayout turnedFor(const ListLayout& layout, QPageLayout paper) {
  using Paper = ListLayout::Paper;
  if (layout.paper == Paper::Portrait) paper.setOrientation(QPageLayout::Portrait);
  if (layout.paper == Paper::Landscape ||
      (layout.paper == Paper::Auto &&
       widthOf(layout) > paper.paintRect(QPageLayout::Millimeter).width()))
    paper.setOrientation(QPageLayout::Landscape);
  return paper;
}

CharacterWidths::CharacterWidths(const QFont& font) : metrics_(font) {
  constexpr int kLatin = 256;
  for (int code = 0; code < kLatin; ++code)
    widths_.push_back(metrics_.horizontalAdvance(QChar(code)));
}

double CharacterWidths::of(const QString& text) const {
  double width = 0;
  for (const QChar character : text) {
    if (character.unicode() >= widths_.size()) return metrics_.horizontalAdvance(text);
    width += widths_[character.unicode()];
  }
  return width;
}

ReportList::ReportList(ListReport report, const QPageLayout& paper)
    : ReportPages(paper),
      report_(std::move(report)),
      font_(twipsFont(report_.layout.textSize)),
      widths_(font_) {
  placeColumns();
  breakPages();
}

void ReportList::placeColumns() {
  const double padding = kCellPadding * kTwipsPerPoint;
  const double share = body().width() / widthOf(report_.layout);
  double left = body().left();
  for (const auto& column : report_.layout.columns) {
    const double width = column.width * share;
    columns_.push_back({left + padding, std::max(width - 2 * padding, 1.0)});
    left += width;
  }
}

// Every page takes at least one row, or a row higher than the paper would never end.
void ReportList::breakPages() {
  const double bottom = body().bottom() - kFooterHeight * lineHeight();
  const auto top = [this] {
    return body().top() + titleHeight(count() - 1) + (1 + kHeadPadding) * lineHeight();
  };
  starts_.push_back(0);
  double y = top();
  for (std::size_t row = 0; row < report_.rows(); ++row) {
    const double height = heightOf(linesOf(row));
    if (y + height > bottom && row > starts_.back()) {
      starts_.push_back(row);
      y = top();
    }
    y += height;
  }
}

double ReportList::lineHeight() const {
  return QFontMetricsF(font_).height();
}

double ReportList::heightOf(int lines) const {
  return (lines + kRowPadding) * lineHeight();
}

double ReportList::titleHeight(int page) const {
  const QFontMetricsF metrics(twipsFont(page == 0 ? kTitleSize : kRunningTitleSize));
  return metrics.height() + kBelowTitle * kTwipsPerPoint;
}

QString ReportList::cell(std::size_t row, std::size_t column) const {
  return toQt(report_.cells[row * columns_.size() + column]).simplified();
}

int ReportList::linesOf(std::size_t row) const {
  qsizetype lines = 1;
  for (std::size_t column = 0; column < columns_.size(); ++column)
    lines = std::max(lines, wrapped(cell(row, column), columns_[column].width).size());
  return static_cast<int>(lines);
}

QStringList ReportList::wrapped(const QString& text, double width) const {
  if (widths_.of(text) <= width) return {text};
  QTextLayout layout(text, font_);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    if (lines.size() == report_.layout.linesPerCell - 1) {
      lines << QFontMetricsF(font_).elidedText(text.mid(line.textStart()), Qt::ElideRight, width);
      break;
    }
    lines << text.mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines;
}

void ReportList::paint(QPainter& painter, int page) const {
  const auto first = starts_[static_cast<std::size_t>(page)];
  const auto end =
      page + 1 < count() ? starts_[static_cast<std::size_t>(page) + 1] : report_.rows();
  double top = paintHeads(painter, paintTitle(painter, page));
  painter.setFont(font_);
  painter.setPen(kInk);
  for (auto row = first; row < end; ++row)
    top = paintRow(painter, row, top, (row - first) % 2 == 1);
  paintFooter(painter, page);
}

double ReportList::paintTitle(QPainter& painter, int page) const {
  const bool first = page == 0;
  const QFont font = twipsFont(first ? kTitleSize : kRunningTitleSize, QFont::Bold);
  const double height = QFontMetricsF(font).height();
  const double baseline = body().top() + QFontMetricsF(font).ascent();
  painter.setFont(font);
  painter.setPen(first ? kAccent : kInk);
  painter.drawText(QPointF(body().left(), baseline), toQt(report_.title));
  const QFont small = twipsFont(first ? kTitleSize * 0.55 : kRunningTitleSize);
  const auto subtitle = toQt(report_.subtitle);
  painter.setFont(small);
  painter.setPen(kQuiet);
  painter.drawText(
      QPointF(body().right() - QFontMetricsF(small).horizontalAdvance(subtitle), baseline),
      subtitle);
  drawLine(painter, body(), body().top() + height + kBelowTitle * kTwipsPerPoint * 0.4,
           first ? 1.5 : 0.75);
  return body().top() + titleHeight(page);
}

double ReportList::paintHeads(QPainter& painter, double top) const {
  const double height = (1 + kHeadPadding) * lineHeight();
  const QFont bold = twipsFont(report_.layout.textSize, QFont::DemiBold);
  const QFontMetricsF metrics(bold);
  painter.fillRect(QRectF(body().left(), top, body().width(), height), kHeadBand);
  painter.setFont(bold);
  painter.setPen(kInk);
  const double baseline = top + kHeadPadding / 2 * lineHeight() + metrics.ascent();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const auto& [left, width] = columns_[i];
    const auto& column = report_.layout.columns[i];
    const auto head = metrics.elidedText(toQt(column.head), Qt::ElideRight, width);
    painter.drawText(
        QPointF(left + indent(column.alignment, width - metrics.horizontalAdvance(head)), baseline),
        head);
  }
  return top + height;
}

double ReportList::paintRow(QPainter& painter, std::size_t row, double top, bool shaded) const {
  const double height = heightOf(linesOf(row));
  if (shaded) painter.fillRect(QRectF(body().left(), top, body().width(), height), kShade);
  for (std::size_t column = 0; column < columns_.size(); ++column)
    paintCell(painter, row, column, top + kRowPadding / 2 * lineHeight());
  return top + height;
}

void ReportList::paintCell(QPainter& painter, std::size_t row, std::size_t column,
                           double top) const {
  for (const auto& line : wrapped(cell(row, column), columns_[column].width)) {
    paintLine(painter, line, column, top);
    top += lineHeight();
  }
}

void ReportList::paintLine(QPainter& painter, const QString& line, std::size_t column,
                           double top) const {
  if (line.isEmpty()) return;
  const auto& [left, width] = columns_[column];
  const auto alignment = report_.layout.columns[column].alignment;
  const double space = alignment == ListLayout::Alignment::Left ? 0 : width - widths_.of(line);
  painter.drawText(
      QPointF(left + indent(alignment, space), top + QFontMetricsF(painter.font()).ascent()), line);
}

void ReportList::paintFooter(QPainter& painter, int page) const {
  const auto text = toQt(report_.footer(page + 1, count()));
  const auto left = text.section('|', 0, 0).trimmed();
  const auto right = text.section('|', 1).trimmed();
  const QFont small = twipsFont(8);
  const QFontMetricsF metrics(small);
  const double baseline = body().bottom() - metrics.descent();
  drawLine(painter, body(), baseline - metrics.height() * 1.2, 0.5);
  painter.setFont(small);
  painter.setPen(kQuiet);
  painter.drawText(QPointF(body().left(), baseline), left);
  painter.drawText(QPointF(body().right() - metrics.horizontalAdvance(right), baseline), right);
}

}  // namespace nautrel
