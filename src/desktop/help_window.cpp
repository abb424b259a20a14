#include "desktop/help_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "desktop/help_browser.h"
#include "desktop/look.h"
#include "desktop/screen_area.h"

namespace pantrigo {

namespace {

constexpr int room = 12;
/// Width of the list, and size of the window, in sizes of the text.
constexpr int listWidth = 19;
constexpr int windowWidth = 66;
constexpr int windowHeight = 46;
/// Share of the work area that the window takes at most.
constexpr double largestShare = 0.92;

QSize windowSize(const ScreenArea& area, int textSize) {
  const QSize wanted(windowWidth * textSize, windowHeight * textSize);
  return wanted.boundedTo(area.work.size() * largestShare);
}

}  // namespace

HelpWindow::HelpWindow(const ScreenArea& area)
    : QWidget(nullptr, Qt::Window),
      searchBox_(new QLineEdit(this)),
      result_(new QLabel(this)),
      list_(new QListWidget(this)),
      back_(new QPushButton(QStringLiteral("&Back"), this)),
      contents_(new QPushButton(QStringLiteral("&Contents"), this)),
      browser_(new HelpBrowser(this)) {
  setObjectName(QStringLiteral("help"));
  setWindowTitle(QStringLiteral("Pantrigo Help"));
  QFont text = font();
  text.setPixelSize(textPixelSize(area.scale));
  setFont(text);
  layOut();
  addKeys();
  connect(searchBox_, &QLineEdit::textChanged, this, [this] { search(); });
  connect(searchBox_, &QLineEdit::returnPressed, this, [this] { goToNext(); });
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) open(*listed_[static_cast<std::size_t>(row)]);
  });
  connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(contents_, &QPushButton::clicked, this, [this] { open(pages_.contents()); });
  connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(browser_, &QTextBrowser::historyChanged, this, [this] { selectPage(); });
  back_->setEnabled(false);
  listPages();
  const QSize size = windowSize(area, text.pixelSize());
  resize(size);
  move(area.fitted(area.centred(size, 0.5), size));
}

void HelpWindow::layOut() {
  searchBox_->setObjectName(QStringLiteral("helpSearch"));
  searchBox_->setPlaceholderText(QStringLiteral("Search the help"));
  searchBox_->setAccessibleName(QStringLiteral("Search the help"));
  searchBox_->setClearButtonEnabled(true);
  list_->setObjectName(QStringLiteral("helpPages"));
  list_->setSpacing(2);
  list_->setAccessibleName(QStringLiteral("Pages of the help"));
  result_->setObjectName(QStringLiteral("helpResult"));
  result_->hide();
  back_->setObjectName(QStringLiteral("helpBack"));

  auto* left = new QVBoxLayout;
  left->setSpacing(room / 2);
  left->addWidget(searchBox_);
  left->addWidget(result_);
  left->addWidget(list_, 1);
  auto* side = new QWidget(this);
  side->setLayout(left);
  side->setFixedWidth(listWidth * font().pixelSize());
  left->setContentsMargins(0, 0, 0, 0);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(back_);
  buttons->addWidget(contents_);
  buttons->addStretch();
  auto* right = new QVBoxLayout;
  right->setSpacing(room / 2);
  right->addLayout(buttons);
  right->addWidget(browser_, 1);

  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(room, room, room, room);
  all->setSpacing(room);
  all->addWidget(side);
  all->addLayout(right, 1);
}

void HelpWindow::addKeys() {
  const auto onKey = [this](const QKeySequence& key, auto action) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
  };
  onKey(Qt::Key_Escape, [this] { close(); });
  onKey(Qt::Key_F1, [this] { open(pages_.contents()); });
  onKey(Qt::Key_F3, [this] { goToNext(); });
  onKey(Qt::SHIFT | Qt::Key_F3, [this] { goToNext(true); });
  onKey(Qt::CTRL | Qt::Key_F, [this] { showSearch(); });
  onKey(Qt::ALT | Qt::Key_Left, [this] { browser_->backward(); });
}

// Coming up.

void HelpWindow::showContext(int context) {
  comeUpWith(pages_.ofContext(context));
}

void HelpWindow::showPageOfWindow(const QString& form) {
  comeUpWith(pages_.ofWindow(form));
}

void HelpWindow::comeUpWith(const HelpPage& page) {
  searchBox_->clear();
  open(page);
  comeToFront();
  browser_->setFocus();
}

void HelpWindow::showSearch() {
  open(page());
  comeToFront();
  searchBox_->setFocus();
  searchBox_->selectAll();
}

void HelpWindow::comeToFront() {
  if (isMinimized()) {
    showNormal();
  } else {
    show();
  }
  raise();
  activateWindow();
}

void HelpWindow::standOver(QWidget* dialog) {
  winId();
  windowHandle()->setTransientParent(dialog == nullptr ? nullptr : dialog->windowHandle());
}

// Pages.

const HelpPage& HelpWindow::page() const {
  const HelpPage* onShow = pages_.at(browser_->source());
  return onShow == nullptr ? pages_.contents() : *onShow;
}

void HelpWindow::open(const HelpPage& page) {
  if (browser_->source() != page.source) browser_->setSource(page.source);
}

void HelpWindow::listPages() {
  listed_ = pages_.holding(words_);
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const HelpPage* page : listed_) list_->addItem(page->title);
  selectPage();
}

void HelpWindow::selectPage() {
  const auto found = std::find(listed_.begin(), listed_.end(), &page());
  const QSignalBlocker quiet(list_);
  list_->setCurrentRow(found == listed_.end() ? -1 : static_cast<int>(found - listed_.begin()));
}

// The search.

void HelpWindow::search() {
  words_ = searchWords(searchBox_->text());
  browser_->setWords(words_);
  listPages();
  const int count = static_cast<int>(listed_.size());
  const QString number = count == 0 ? QStringLiteral("No") : QString::number(count);
  result_->setText(number + (count == 1 ? QStringLiteral(" page has that.") : QStringLiteral(" pages have that.")));
  result_->setVisible(!words_.isEmpty());
}

void HelpWindow::goToNext(bool backwards) {
  if (words_.isEmpty() || listed_.empty()) return;
  const auto present = std::find(listed_.begin(), listed_.end(), &page());
  if (present != listed_.end() && browser_->goToNextPlace(backwards)) return;
  const auto count = static_cast<std::ptrdiff_t>(listed_.size());
  std::ptrdiff_t next = backwards ? count - 1 : 0;
  if (present != listed_.end()) next = (present - listed_.begin() + (backwards ? count - 1 : 1)) % count;
  open(*listed_[static_cast<std::size_t>(next)]);
  browser_->leavePlace(backwards);
  browser_->goToNextPlace(backwards);
}

}  // namespace pantrigo
