#pragma once

#include <QFont>
#include <QImage>
#include <QPrinter>
#include <QString>
#include <functional>
#include <vector>

#include "platform/printer/printer.h"

namespace pantrigo {

/// A piece of text on a page: its place from the top left of the printable area, in twips.
struct PrintedText {
  double x = 0;
  double y = 0;
  QString text;
  QFont font;
};

/// A picture on a page, with its place there in twips.
struct PaintedPicture {
  QRectF place;
  QImage image;
};

struct PrintedPage {
  std::vector<PrintedText> texts;
  std::vector<PaintedPicture> pictures;
};

/// The printer object over a real printer, or over a PDF file when there is none. The pages are laid out first, in
/// twips, and painted when the document ends.
class QtPrinter : public Printer {
 public:
  QtPrinter();

  /// The printer, its paper and its file, as the set-up dialog leaves them.
  [[nodiscard]] QPrinter& device() { return device_; }

  /// Called when a document went into a file because no printer is installed; gives its path.
  std::function<void(const QString& file)> whenPrintedToFile;

  /// The pages of the open document.
  [[nodiscard]] const std::vector<PrintedPage>& pages() const { return pages_; }

  void setFontSize(double points) override;
  void setFontBold(bool bold) override;
  void tab(int column) override;
  void space(int count) override;
  void print(std::string_view text) override;
  void endLine() override;
  [[nodiscard]] double currentY() const override { return y_; }
  void setCurrentY(double twips) override;
  /// A picture that would lie beyond the right margin is moved to it.
  void PaintPicture(const PrintPicture& picture, const PrintArea& area) override;
  void NewPage() override;
  void EndDoc() override;

 private:
  [[nodiscard]] QSizeF pageSize() const;
  [[nodiscard]] double columnWidth() const;
  [[nodiscard]] double lineHeight() const;
  void makeRoom();
  void openPage();
  void paint();
  static void paintPage(QPainter& painter, const PrintedPage& page);

  QPrinter device_;
  QFont font_;
  std::vector<PrintedPage> pages_;
  double x_ = 0;
  double y_ = 0;
  bool pageOpen_ = false;
};

}  // namespace pantrigo
