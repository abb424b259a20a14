#include "desktop/qt_printer.h"

#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

#include "desktop/text_conversion.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Twips to the inch and to the point.
constexpr double twipsPerInch = 1440;
constexpr int twipsPerPoint = 20;
/// Margins in inches: 80 columns of the body's text fit between them on both usual papers.
constexpr double margin = 0.5;
constexpr double bodySize = 10;

/// A name for a document that no file in the person's documents has yet.
QString freeFileName() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  folder.mkpath(QStringLiteral("."));
  for (int number = 1;; ++number) {
    const QString file = folder.filePath(QStringLiteral("Pantrigo %1.pdf").arg(number));
    if (!QFile::exists(file)) return file;
  }
}

}  // namespace

QtPrinter::QtPrinter() : device_(QPrinter::HighResolution), font_(QStringLiteral("Sans Serif")) {
  font_.setStyleHint(QFont::SansSerif);
  device_.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Inch);
  device_.setDocName(QStringLiteral("Pantrigo"));
  setFontSize(bodySize);
}

// Fonts are as large in pixels as they are in twips, so that metrics are twips and do not depend on the device.

void QtPrinter::setFontSize(double points) {
  font_.setPixelSize(static_cast<int>(std::lround(points * twipsPerPoint)));
}

void QtPrinter::setFontBold(bool bold) {
  font_.setBold(bold);
}

QSizeF QtPrinter::pageSize() const {
  const QSizeF inches = device_.pageLayout().paintRect(QPageLayout::Inch).size();
  return inches * twipsPerInch;
}

double QtPrinter::columnWidth() const {
  QFont plain = font_;
  plain.setBold(false);
  return QFontMetricsF(plain).horizontalAdvance(QLatin1Char('0')) * 0.9;
}

double QtPrinter::lineHeight() const {
  return QFontMetricsF(font_).height();
}

void QtPrinter::makeRoom() {
  if (pageOpen_ && y_ + lineHeight() > pageSize().height()) NewPage();
  openPage();
}

void QtPrinter::openPage() {
  if (!pageOpen_) pages_.emplace_back();
  pageOpen_ = true;
}

void QtPrinter::tab(int column) {
  const int columns = std::max(1, static_cast<int>(pageSize().width() / columnWidth()));
  int target = std::max(column, 1);
  if (target > columns) target = target % columns;
  const double place = (target - 1) * columnWidth();
  if (x_ > place) endLine();
  makeRoom();
  x_ = place;
}

void QtPrinter::space(int count) {
  makeRoom();
  x_ += count * columnWidth();
}

void QtPrinter::print(std::string_view text) {
  makeRoom();
  const QString piece = toQt(text);
  if (!piece.trimmed().isEmpty()) pages_.back().texts.push_back({x_, y_, piece, font_});
  x_ += QFontMetricsF(font_).horizontalAdvance(piece);
}

void QtPrinter::endLine() {
  makeRoom();
  x_ = 0;
  y_ += lineHeight();
}

void QtPrinter::setCurrentY(double twips) {
  y_ = twips;
}

void QtPrinter::PaintPicture(const PrintPicture& picture, const PrintArea& area) {
  constexpr int invalidPicture = 481;
  const std::string_view bytes = picture.bytes == nullptr ? std::string_view() : *picture.bytes;
  const QImage image = QImage::fromData(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())), "bmp");
  if (image.isNull()) throw RuntimeError(invalidPicture);
  openPage();
  const double left = std::max(0.0, std::min(area.x, pageSize().width() - area.width));
  pages_.back().pictures.push_back({QRectF(left, area.y, area.width, area.height), image});
}

void QtPrinter::NewPage() {
  if (!pageOpen_) pages_.emplace_back();
  pageOpen_ = false;
  x_ = 0;
  y_ = 0;
}

void QtPrinter::EndDoc() {
  if (!pages_.empty()) paint();
  pages_.clear();
  pageOpen_ = false;
  x_ = 0;
  y_ = 0;
}

void QtPrinter::paintPage(QPainter& painter, const PrintedPage& page) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (const PaintedPicture& picture : page.pictures) painter.drawImage(picture.place, picture.image);
  for (const PrintedText& piece : page.texts) {
    painter.setFont(piece.font);
    painter.drawText(QPointF(piece.x, piece.y + QFontMetricsF(piece.font).ascent()), piece.text);
  }
}

void QtPrinter::paint() {
  const bool toFreeFile = QPrinterInfo::availablePrinterNames().isEmpty() && device_.outputFileName().isEmpty();
  if (toFreeFile) {
    device_.setOutputFormat(QPrinter::PdfFormat);
    device_.setOutputFileName(freeFileName());
  }
  QPainter painter(&device_);
  const double scale = device_.logicalDpiX() / twipsPerInch;
  painter.scale(scale, scale);
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (page > 0) device_.newPage();
    paintPage(painter, pages_[page]);
  }
  painter.end();
  if (!toFreeFile) return;
  if (whenPrintedToFile) whenPrintedToFile(device_.outputFileName());
  device_.setOutputFileName(QString());
}

}  // namespace pantrigo
