#include "desktop/form_view.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <optional>

#include "desktop/accessible_names.h"
#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/look.h"
#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// Smallest share of its first size that a main window shrinks to.
constexpr double smallestShare = 0.6;
/// Longest wait for a new window to come onto the screen, in milliseconds.
constexpr int exposureTime = 300;

bool hasMenu(const Form& form) {
  return std::any_of(form.controls().begin(), form.controls().end(),
                     [](const Control* control) { return control->kind() == ControlKind::MenuEntry; });
}

/// A dialog that nothing can close is on show while the program works, and has no frame.
bool isSplash(const Form& form) {
  return !hasMenu(form) && form.cancelButton() != nullptr && !form.cancelButton()->Visible();
}

Qt::WindowFlags flagsOf(const Form& form) {
  if (hasMenu(form)) return Qt::Window;
  if (isSplash(form)) return Qt::SplashScreen | Qt::FramelessWindowHint;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
}

/// How far the groups of a window are moved across, in twips, so that the margins left and right of them are the same.
double centring(const Form& form) {
  double left = form.Width();
  double right = 0;
  for (const Control* control : form.controls()) {
    const bool group = control->container() == nullptr && control->kind() == ControlKind::Frame;
    if (!group) continue;
    left = std::min(left, control->Left());
    right = std::max(right, control->Left() + control->Width());
  }
  return left > right ? 0 : (form.Width() - left - right) / 2;
}

std::optional<int> keyCode(const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Escape:
      return keyEscape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keyReturn;
    case Qt::Key_PageUp:
      return keyPageUp;
    case Qt::Key_PageDown:
      return keyPageDown;
    case Qt::Key_Delete:
      return keyDelete;
    default:
      return std::nullopt;
  }
}

/// A letter with Alt is an access key, and no text where nothing answers to it.
bool isAccessKey(const QKeyEvent& event) {
  return event.modifiers() == Qt::AltModifier && !event.text().isEmpty() && event.text().front().isPrint();
}

}  // namespace

FormView::FormView(Form& form, ViewHost& host)
    : QWidget(nullptr, flagsOf(form)), form_(form), host_(host), canvas_(new QWidget(this)) {
  const QScopedValueRollback guard(changing_, changing_ + 1);
  setObjectName(toQt(form.Name()));
  setWindowTitle(toQt(form.Caption()));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(canvas_);
  if (hasMenu(form)) buildMenu();
  if (!isMainWindow()) setDialogFont();
  canvas_->installEventFilter(this);
  buildControls();
  orderTabs();
  connectLabels();
  nameControls();
  if (isMainWindow()) {
    setUpMainWindow();
  } else {
    setUpDialog();
  }
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { host_.helpWanted(form_); });
  showPointer();
  form.setListener(this);
  showFocus();
}

FormView::~FormView() {
  if (form_.listener() == this) form_.setListener(nullptr);
  canvas_->removeEventFilter(this);
}

QWidget* FormView::widgetOf(const Control& control) const {
  const auto found = bindings_.find(&control);
  return found == bindings_.end() ? nullptr : &found->second->widget();
}

void FormView::buildMenu() {
  auto* bar = new QMenuBar(this);
  menu_ = std::make_unique<MenuTree>(form_, *bar, host_);
  layout()->setMenuBar(bar);
}

void FormView::buildControls() {
  for (Control* control : form_.controls()) {
    QWidget* parent = control->container() == nullptr ? canvas_ : widgetOf(*control->container());
    if (parent == nullptr) continue;
    std::unique_ptr<Binding> binding = makeBinding(*control, *parent, host_);
    if (binding == nullptr) continue;
    QWidget& widget = binding->widget();
    widget.setObjectName(toQt(control->Name()));
    binding->showAll();
    if (control->takesFocus()) {
      focusWidgets_[&widget] = binding.get();
      widget.installEventFilter(this);
    }
    bindings_[control] = std::move(binding);
  }
  for (Control* control : form_.controls()) controlChanged(*control, Aspect::Order);
}

void FormView::orderTabs() {
  QWidget* before = nullptr;
  for (const Control* control : form_.controls()) {
    QWidget* widget = control->takesFocus() ? widgetOf(*control) : nullptr;
    if (widget == nullptr) continue;
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

void FormView::connectLabels() {
  for (const Control* control : form_.controls()) {
    if (control->kind() != ControlKind::Label) continue;
    if (!hasAccessKey(static_cast<const Label*>(control)->Caption())) continue;
    const auto& all = form_.controls();
    const auto next = std::find_if(std::find(all.begin(), all.end(), control), all.end(),
                                   [](const Control* other) { return other->takesFocus(); });
    if (next == all.end()) continue;
    if (auto* label = qobject_cast<QLabel*>(widgetOf(*control))) label->setBuddy(widgetOf(**next));
  }
}

void FormView::nameControls() {
  for (const auto& [control, binding] : bindings_) {
    const QString name = spokenName(*control);
    if (binding->widget().accessibleName() != name) binding->widget().setAccessibleName(name);
  }
}

// Size and places.

QSize FormView::designSize() const {
  const double scale = isMainWindow() ? 1 : dialogScale(host_.area().scale);
  return {static_cast<int>(std::lround(form_.Width() / twipsPerPixel * scale)),
          static_cast<int>(std::lround(form_.Height() / twipsPerPixel * scale))};
}

void FormView::setUpMainWindow() {
  const ScreenArea area = host_.area();
  const QSize client = designSize();
  canvas_->setMinimumSize(client * smallestShare);
  resize(client.width(), client.height() + layout()->menuBar()->sizeHint().height());
  const QPoint wanted(static_cast<int>(form_.Left() / twipsPerPixel), static_cast<int>(form_.Top() / twipsPerPixel));
  move(area.fitted(area.area.topLeft() + wanted, client));
}

void FormView::setDialogFont() {
  // Before there are any widgets: a list with rows measures all of them when it gets another font.
  QFont font = canvas_->font();
  font.setPixelSize(textPixelSize(host_.area().scale));
  canvas_->setFont(font);
}

void FormView::setUpDialog() {
  const ScreenArea area = host_.area();
  laidOut_ = layOutDialog(*this, *canvas_);
  if (laidOut_) {
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();
  } else {
    setFixedSize(designSize());
  }
  const double spare = area.size().height - form_.Height();
  move(area.centred(size(), spare > 0 ? form_.Top() / spare : 0));
}

void FormView::arrange() {
  if (laidOut_ || form_.Width() <= 0 || form_.Height() <= 0) return;
  const QScopedValueRollback guard(changing_, changing_ + 1);
  if (isMainWindow()) {
    QFont font = canvas_->font();
    font.setPixelSize(textPixelSize(presentScale()));
    canvas_->setFont(font);
  }
  for (const auto& [control, binding] : bindings_) place(*control);
  for (const auto& [control, binding] : bindings_) binding->placed(presentScale() / twipsPerPixel);
}

double FormView::presentScale() const {
  if (!isMainWindow()) return dialogScale(host_.area().scale);
  const double across = canvas_->width() * twipsPerPixel / form_.Width();
  const double down = canvas_->height() * twipsPerPixel / form_.Height();
  return host_.area().scale * std::min(across, down);
}

void FormView::place(const Control& control) {
  QWidget* widget = widgetOf(control);
  if (laidOut_ || widget == nullptr || form_.Width() <= 0 || form_.Height() <= 0) return;
  const double across = canvas_->width() / form_.Width();
  const double down = canvas_->height() / form_.Height();
  Box box = control.box();
  if (control.container() == nullptr && control.kind() != ControlKind::ToolBar) box.left += centring(form_);
  const QPoint start(static_cast<int>(std::lround(box.left * across)), static_cast<int>(std::lround(box.top * down)));
  const QPoint end(static_cast<int>(std::lround((box.left + box.width) * across)),
                   static_cast<int>(std::lround((box.top + box.height) * down)));
  widget->setGeometry(QRect(start, QSize(end.x() - start.x(), end.y() - start.y())));
}

void FormView::present(Modality modality, QWidget* over) {
  setWindowModality(modality == Modality::Modal ? Qt::ApplicationModal : Qt::NonModal);
  winId();
  if (modality == Modality::Modal && over != nullptr && over != this)
    windowHandle()->setTransientParent(over->windowHandle());
  show();
}

void FormView::activate() {
  if (minimising_) return;
  if (isMinimized()) showNormal();
  raise();
  activateWindow();
}

// What the form tells.

void FormView::controlChanged(Control& control, Aspect aspect) {
  if (control.kind() == ControlKind::MenuEntry) {
    if (menu_ != nullptr) menu_->show(static_cast<MenuEntry&>(control));
    return;
  }
  const auto found = bindings_.find(&control);
  if (found == bindings_.end()) return;
  const QScopedValueRollback guard(changing_, changing_ + 1);
  switch (aspect) {
    case Aspect::Geometry:
      place(control);
      found->second->placed(presentScale() / twipsPerPixel);
      if (const auto around = bindings_.find(control.container()); around != bindings_.end()) {
        around->second->placed(presentScale() / twipsPerPixel);
      }
      break;
    case Aspect::Order:
      if (control.order() > 0) found->second->widget().raise();
      if (control.order() < 0) found->second->widget().lower();
      break;
    default:
      found->second->changed(aspect);
  }
  if (aspect == Aspect::Caption) nameControls();
  if (aspect == Aspect::Visible || aspect == Aspect::Enabled) showFocus();
}

void FormView::formChanged(Aspect aspect) {
  if (aspect == Aspect::Caption) setWindowTitle(toQt(form_.Caption()));
  if (aspect == Aspect::Pointer) showPointer();
  if (aspect == Aspect::Geometry && isMainWindow()) setUpMainWindow();
}

void FormView::showPointer() {
  if (form_.MousePointer() == pointerHourglass) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
  }
}

void FormView::focusChanged() {
  showFocus();
  if (isMainWindow() || form_.ActiveControl() == nullptr) return;
  // What a dialog asks for again, as after a refused entry, is there to be typed over.
  QWidget* widget = widgetOf(*form_.ActiveControl());
  if (auto* box = qobject_cast<QLineEdit*>(widget)) box->selectAll();
  auto* combo = qobject_cast<QComboBox*>(widget);
  if (combo != nullptr && combo->isEditable()) combo->lineEdit()->selectAll();
}

void FormView::showFocus() {
  const QScopedValueRollback guard(changing_, changing_ + 1);
  QWidget* wanted = form_.ActiveControl() == nullptr ? nullptr : widgetOf(*form_.ActiveControl());
  if (wanted != nullptr && focusWidget() != wanted) wanted->setFocus(Qt::OtherFocusReason);
}

void FormView::refresh() {
  repaint();
  if (!isVisible() || isMinimized() || windowHandle() == nullptr) return;
  QElapsedTimer waited;
  waited.start();
  // Only a window that has just been shown waits. A turn without input, which the toolkit then lays aside until
  // something else happens, would keep a press of Stop from a routine that refreshes in each of its rounds.
  while (!windowHandle()->isExposed() && waited.elapsed() < exposureTime) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, exposureTime / 10);
  }
}

// What a person does.

bool FormView::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) host_.windowActivated(form_);
  return QWidget::event(event);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == canvas_) {
    if (event->type() == QEvent::Resize) arrange();
    return false;
  }
  const auto found = focusWidgets_.find(watched);
  if (found == focusWidgets_.end()) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn) takeFocus(*found->second, static_cast<QFocusEvent&>(*event));
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  return isAccessKey(key) || takeKey(key);
}

void FormView::takeFocus(const Binding& binding, const QFocusEvent& event) {
  const bool byPerson = event.reason() == Qt::MouseFocusReason || event.reason() == Qt::TabFocusReason ||
                        event.reason() == Qt::BacktabFocusReason || event.reason() == Qt::ShortcutFocusReason;
  if (changing_ > 0 || !byPerson) return;
  host_.dispatch([&](Windows& windows) { windows.userFocuses(binding.control()); });
}

bool FormView::takeKey(const QKeyEvent& event) {
  const std::optional<int> code = keyCode(event);
  if (!code.has_value()) return false;
  const Control* before = form_.ActiveControl();
  KeyUse use = KeyUse::Unused;
  bool stillActive = false;
  host_.dispatch([&](Windows& windows) {
    use = userKey(windows, form_, *code);
    stillActive = windows.active() == &form_;
  });
  // A key that moved the focus or opened a window has had its effect.
  return use == KeyUse::Used || !stillActive || form_.ActiveControl() != before;
}

void FormView::keyPressEvent(QKeyEvent* event) {
  const bool seenBefore = focusWidgets_.contains(focusWidget());
  if (seenBefore || !takeKey(*event)) QWidget::keyPressEvent(event);
}

void FormView::mousePressEvent(QMouseEvent* event) {
  host_.dispatch([this](Windows& windows) { windows.userActivates(form_); });
  event->accept();
}

void FormView::closeEvent(QCloseEvent* event) {
  event->ignore();
  host_.dispatch([this](Windows& windows) {
    if (form_.Visible() && !windows.blocked(form_)) windows.userCloses(form_);
  });
}

void FormView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
  const QScopedValueRollback guard(minimising_, isMinimized());
  host_.dispatch([this](Windows& windows) { windows.userMinimises(form_, isMinimized()); });
}

}  // namespace pantrigo
