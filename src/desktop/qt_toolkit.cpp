#include "desktop/qt_toolkit.h"

#include <QApplication>
#include <QBuffer>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QImageReader>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QScreen>
#include <QStorageInfo>
#include <QTextStream>
#include <algorithm>
#include <iterator>
#include <utility>

#include "desktop/text_conversion.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Least time between two turns of the event pump, in milliseconds: that of a picture on the screen. More turns would
/// paint what nobody sees, and a press of Stop waits no longer than this.
constexpr int pumpTime = 16;

/// How long the system may take to make a window active that it was asked to, in milliseconds.
constexpr int activationTime = 1000;

QMessageBox::Icon boxIcon(int style) {
  // The style is the sum of an icon (16, 32, 48, 64) and, for Yes and No, 4.
  constexpr int iconBits = 0x70;
  switch (style & iconBits) {
    case boxStop:
      return QMessageBox::Critical;
    case boxExclamation:
      return QMessageBox::Warning;
    case boxInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::Question;
  }
}

bool asksYesNo(int style) {
  constexpr int yesNo = 4;
  return (style & yesNo) != 0;
}

}  // namespace

QtToolkit::QtToolkit() {
  printer_.whenPrintedToFile = [this](const QString& file) { tellWhereThePrintWent(file); };
}

QtToolkit::~QtToolkit() {
  setScreenPointer(pointerDefault);
}

void QtToolkit::dispatch(const std::function<void(Windows&)>& event) {
  windows_->loop().dispatch([&] { event(*windows_); });
  settle();
}

void QtToolkit::settle() {
  const EventLoop& loop = windows_->loop();
  if (loop.ended()) {
    for (QDialog* dialog : dialogs_) dialog->reject();
  }
  if (loop.busy()) return;
  std::erase_if(going_, [](const QPointer<FormView>& gone) { return gone.isNull(); });
  for (std::unique_ptr<FormView>& dropped : dropped_) {
    dropped->deleteLater();
    going_.emplace_back(dropped.release());
  }
  dropped_.clear();
  if (loop.ended() && whenEnded) whenEnded();
}

// Views.

FormView* QtToolkit::view(const Form& form) const {
  const auto found = views_.find(&form);
  return found == views_.end() ? nullptr : found->second.get();
}

QWidget* QtToolkit::activeWindow() const {
  const Form* active = windows_ == nullptr ? nullptr : windows_->active();
  FormView* window = active == nullptr ? nullptr : view(*active);
  return window != nullptr && window->isVisible() ? window : nullptr;
}

void QtToolkit::showView(Form& form, Modality modality) {
  std::unique_ptr<FormView>& view = views_[&form];
  ViewHost& host = *this;
  if (view == nullptr) view = std::make_unique<FormView>(form, host);
  view->present(modality, activeWindow());
}

void QtToolkit::hideView(Form& form) {
  if (FormView* window = view(form)) window->hide();
}

void QtToolkit::dropView(Form& form) {
  const auto found = views_.find(&form);
  if (found == views_.end()) return;
  form.setListener(nullptr);
  dropped_.push_back(std::move(found->second));
  views_.erase(found);
}

void QtToolkit::dropAllViews() {
  views_.clear();
  dropped_.clear();
  for (const QPointer<FormView>& view : std::exchange(going_, {})) delete view;
  help_.reset();
}

void QtToolkit::activateView(Form& form) {
  FormView* window = view(form);
  if (window == nullptr) return;
  expect(window->isActiveWindow() ? nullptr : &form);
  window->activate();
  if (help_ != nullptr) freeHelp();
}

void QtToolkit::expect(const Form* form) {
  expected_ = form;
  expectedSince_.start();
}

void QtToolkit::windowActivated(Form& form) {
  const bool onTheWay = expected_ != nullptr && expected_ != &form && expectedSince_.elapsed() < activationTime;
  if (windows_ == nullptr || onTheWay) return;
  expected_ = nullptr;
  const bool elsewhere = !dialogs_.empty() || windows_->active() == &form || windows_->blocked(form) || !form.Visible();
  if (elsewhere || windows_->active() == nullptr) return;
  // A window that is minimised hands the keyboard to the next one, and nobody has done anything there yet.
  const FormView* before = view(*windows_->active());
  if (before != nullptr && before->isMinimized()) return;
  dispatch([&](Windows& windows) { windows.userActivates(form); });
}

// Waiting.

void QtToolkit::waitModal(Form&, const std::function<bool()>& over) {
  while (!over()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtToolkit::pumpEvents() {
  if (sincePump_.isValid() && sincePump_.elapsed() < pumpTime) return;
  QCoreApplication::processEvents();
  sincePump_.start();
}

int QtToolkit::run(QDialog& dialog) {
  const bool hourglass = screenPointerSet_;
  setScreenPointer(pointerDefault);
  dialogs_.push_back(&dialog);
  const int result = dialog.exec();
  std::erase(dialogs_, &dialog);
  if (hourglass) setScreenPointer(pointerHourglass);
  const QWidget* below = activeWindow();
  if (below != nullptr && !below->isActiveWindow()) expect(windows_->active());
  return result;
}

BoxAnswer QtToolkit::showBox(const MessageBox& box) {
  if (unattended_) {
    QTextStream(stderr) << toQt(box.caption) << ": " << shownLines(box.text) << '\n';
    return asksYesNo(box.style) ? BoxAnswer::No : BoxAnswer::OK;
  }
  QMessageBox dialog(activeWindow());
  dialog.setIcon(boxIcon(box.style));
  dialog.setWindowTitle(toQt(box.caption));
  dialog.setTextFormat(Qt::PlainText);
  dialog.setText(shownLines(box.text));
  if (!asksYesNo(box.style)) {
    dialog.setStandardButtons(QMessageBox::Ok);
    run(dialog);
    return BoxAnswer::OK;
  }
  dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  dialog.setDefaultButton(QMessageBox::Yes);
  dialog.setEscapeButton(QMessageBox::No);
  run(dialog);
  return dialog.clickedButton() == dialog.button(QMessageBox::Yes) ? BoxAnswer::Yes : BoxAnswer::No;
}

// The surroundings.

void QtToolkit::Beep() {
  QApplication::beep();
}

LocalTime QtToolkit::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(), now.date().day(), now.time().hour(), now.time().minute()};
}

ScreenArea QtToolkit::area() const {
  return screenArea(QGuiApplication::primaryScreen()->availableGeometry());
}

ScreenSize QtToolkit::screen() const {
  return area().size();
}

std::vector<std::string> QtToolkit::drives() const {
  // The system mounts parts of itself at many places; what a person mounts lies in these folders.
  const QString folders[] = {QStringLiteral("/media/"), QStringLiteral("/run/media/"), QStringLiteral("/mnt")};
  std::vector<std::string> drives = {"/"};
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString place = volume.rootPath();
    const bool persons = std::any_of(std::begin(folders), std::end(folders),
                                     [&](const QString& folder) { return place.startsWith(folder); });
    if (persons && volume.isReady()) drives.push_back(fromQt(place));
  }
  return drives;
}

void QtToolkit::setScreenPointer(int pointer) {
  const bool hourglass = pointer == pointerHourglass;
  if (hourglass == screenPointerSet_) return;
  screenPointerSet_ = hourglass;
  if (hourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

HelpWindow& QtToolkit::help() {
  if (help_ == nullptr) help_ = std::make_unique<HelpWindow>(area());
  freeHelp();
  return *help_;
}

void QtToolkit::freeHelp() {
  QWidget* window = activeWindow();
  help_->standOver(window != nullptr && window->isModal() ? window : nullptr);
}

void QtToolkit::showHelp(const HelpCall& call) {
  if (call.command == helpPartialKey) {
    help().showSearch();
  } else {
    help().showContext(call.context);
  }
}

void QtToolkit::helpWanted(const Form& form) {
  help().showPageOfWindow(toQt(form.Name()));
}

void QtToolkit::setUpPrinter(int) {
  QPrintDialog dialog(&printer_.device(), activeWindow());
  dialog.setWindowTitle(QStringLiteral("Printer Setup"));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);
  for (QDialogButtonBox* buttons : dialog.findChildren<QDialogButtonBox*>()) {
    if (QPushButton* print = buttons->button(QDialogButtonBox::Ok)) print->setText(QStringLiteral("&OK"));
  }
  run(dialog);
}

void QtToolkit::tellWhereThePrintWent(const QString& file) {
  auto* box = new QMessageBox(QMessageBox::Information, QStringLiteral("Print"),
                              QStringLiteral("No printer is installed. The print is in the file\n%1").arg(file),
                              QMessageBox::Ok, activeWindow());
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowModality(Qt::NonModal);
  box->show();
}

PictureFile QtToolkit::LoadPicture(const Files& files, std::string_view name) {
  constexpr int invalidPicture = 481;
  auto bytes = std::make_shared<const std::string>(files.readBytes(name));
  QByteArray content = QByteArray::fromRawData(bytes->data(), static_cast<qsizetype>(bytes->size()));
  QBuffer buffer(&content);
  QImageReader reader(&buffer, "bmp");
  const QImage image = reader.read();
  if (image.isNull()) throw RuntimeError(invalidPicture);
  return {std::string(name), image.width(), image.height(), bytes};
}

}  // namespace pantrigo
