#include <QHBoxLayout>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <vector>

#include "desktop/binding.h"
#include "desktop/look.h"
#include "desktop/sunken_icon.h"
#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// Property of a button: the name of the picture that it shows.
constexpr const char* pictureProperty = "picture";
/// Width of a spacer, in buttons.
constexpr double spacerWidth = 0.25;
/// A button is at most this much wider than high.
constexpr double widestButton = 1.25;
/// From this height on, in pixels, there is room for a word under the picture.
constexpr int heightForWords = 50;

/// A row of buttons that share the width of the bar.
class BarWidget : public QWidget {
 public:
  BarWidget(QWidget* parent, const ToolBar& bar) : QWidget(parent), bar_(bar) {
    for (const ToolButton& button : bar.buttons())
      buttons_.push_back(button.key.empty() ? nullptr : makeButton(button));
  }

  [[nodiscard]] const std::vector<QToolButton*>& buttons() const { return buttons_; }

  /// Shows the state of the buttons.
  void showButtons() {
    for (std::size_t place = 0; place < buttons_.size(); ++place) {
      if (QToolButton* button = buttons_[place]) showButton(*button, bar_.buttons()[place]);
    }
    arrange();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    arrange();
  }

 private:
  QToolButton* makeButton(const ToolButton& description) {
    auto* button = new QToolButton(this);
    button->setObjectName(toQt(description.key));
    button->setText(toQt(description.key));
    button->setToolTip(toQt(description.toolTip));
    button->setAccessibleName(toQt(description.toolTip));
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    return button;
  }

  void showButton(QToolButton& button, const ToolButton& state) const {
    const QSignalBlocker blocker(button);
    showPicture(button, state.image);
    button.setEnabled(state.enabled);
    button.setVisible(state.visible);
    button.setCheckable(state.value != 0);
    button.setChecked(state.value != 0);
  }

  void showPicture(QToolButton& button, int number) const {
    const QString picture = bar_.imageList() == nullptr ? QString() : toQt(bar_.imageList()->picture(number));
    if (button.property(pictureProperty).toString() == picture) return;
    button.setProperty(pictureProperty, picture);
    const QIcon icon = iconNamed(picture);
    button.setIcon(icon.isNull() ? icon : sunkenIcon(icon));
  }

  [[nodiscard]] double buttonsInRow() const {
    double count = 0;
    for (const ToolButton& button : bar_.buttons()) {
      if (button.visible) count += button.key.empty() ? spacerWidth : 1;
    }
    return std::max(count, 1.0);
  }

  void arrange() {
    const double each = std::min(width() / buttonsInRow(), height() * widestButton);
    double left = 0;
    for (std::size_t place = 0; place < buttons_.size(); ++place) {
      const ToolButton& state = bar_.buttons()[place];
      if (!state.visible) continue;
      const double own = state.key.empty() ? each * spacerWidth : each;
      if (QToolButton* button = buttons_[place]) placeButton(*button, left, own);
      left += own;
    }
  }

  void placeButton(QToolButton& button, double left, double width) const {
    const int start = static_cast<int>(left);
    button.setGeometry(start + 1, 2, static_cast<int>(left + width) - start - 2, height() - 4);
    const bool words = height() >= heightForWords;
    const bool pictured = !button.icon().isNull();
    button.setToolButtonStyle(!pictured ? Qt::ToolButtonTextOnly
                              : words   ? Qt::ToolButtonTextUnderIcon
                                        : Qt::ToolButtonIconOnly);
    QFont font = this->font();
    font.setPixelSize(wordSize(font, static_cast<int>(width) - 8));
    button.setFont(font);
    const int room = height() - 14 - (words ? QFontMetrics(font).height() : 0);
    const int side = std::clamp(std::min(room, static_cast<int>(width * 0.6)), 12, 48);
    button.setIconSize({side, side});
  }

  /// The largest text size, not above a good size for a hint, at which the longest word fits the width.
  [[nodiscard]] int wordSize(QFont font, int width) const {
    int size = std::max(8, static_cast<int>(font.pixelSize() * 0.82));
    const auto widest = [&] {
      font.setPixelSize(size);
      int pixels = 0;
      for (const ToolButton& button : bar_.buttons()) {
        pixels = std::max(pixels, QFontMetrics(font).horizontalAdvance(toQt(button.key)));
      }
      return pixels;
    };
    while (size > 8 && widest() > width) --size;
    return size;
  }

  const ToolBar& bar_;
  std::vector<QToolButton*> buttons_;
};

class ToolBarBinding : public Binding {
 public:
  ToolBarBinding(ToolBar& toolBar, QWidget& parent, UserEvents& userEvents)
      : Binding(toolBar, userEvents), toolBar_(toolBar), bar_(new BarWidget(&parent, toolBar)) {
    for (std::size_t place = 0; place < bar_->buttons().size(); ++place) {
      QToolButton* button = bar_->buttons()[place];
      if (button == nullptr) continue;
      const std::string key = toolBar.buttons()[place].key;
      QObject::connect(button, &QToolButton::clicked, button, [this, key] { pressed(key); });
    }
  }

  [[nodiscard]] QWidget& widget() const override { return *bar_; }

  void showAll() override {
    Binding::showAll();
    bar_->showButtons();
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Buttons) bar_->showButtons();
  }

 private:
  void pressed(const std::string& key) {
    events().dispatch([&](Windows& windows) { userPressesButton(windows, toolBar_, key); });
    bar_->showButtons();
  }

  ToolBar& toolBar_;
  BarWidget* bar_;
};

}  // namespace

std::unique_ptr<Binding> bindToolBar(ToolBar& toolBar, QWidget& parent, UserEvents& events) {
  return std::make_unique<ToolBarBinding>(toolBar, parent, events);
}

}  // namespace pantrigo
