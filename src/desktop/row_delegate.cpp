#include "desktop/row_delegate.h"

#include <QIcon>
#include <QPainter>

#include "desktop/look.h"

namespace pantrigo {

namespace {

/// Height of a row, and side of a tick's box, in text heights.
constexpr double rowHeight = 1.32;
constexpr double markSide = 0.86;
/// Radius of its corners, in its sides.
constexpr double markRounding = 0.22;
constexpr int margin = 6;

struct RowPaint {
  QColor text;
  QColor ground;
  bool bold;
};

QColor rowText(int colour, const QColor& ground) {
  const QColor own = tableColour(colour);
  return isMarkColour(colour) ? own : readableOn(own, ground);
}

RowPaint singlePaint(const RowColours& colours, bool selected, bool enabled) {
  const bool marked = isMarkColour(colours.foreColor);
  if (!enabled) return {hue::disabledText, Qt::transparent, marked};
  if (!selected) return {rowText(colours.foreColor, hue::field), Qt::transparent, marked};
  const QColor ground = tableColour(colours.selBackColor);
  return {rowText(colours.selForeColor, ground), ground, marked};
}

RowPaint multiplePaint(bool selected, bool enabled) {
  if (!enabled) return {hue::disabledText, Qt::transparent, false};
  return {hue::text, selected ? hue::tint : QColor(Qt::transparent), false};
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {option.fontMetrics.averageCharWidth(), static_cast<int>(option.fontMetrics.height() * rowHeight)};
}

void RowDelegate::paintMark(QPainter& painter, const QRect& place, bool ticked, bool enabled) const {
  const QColor rim = !enabled ? hue::line : ticked ? hue::accent : QColor(169, 159, 143);
  const QColor ground = !enabled ? hue::ground : ticked ? hue::accent : hue::field;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(rim);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), place.width() * markRounding,
                          place.width() * markRounding);
  if (ticked) QIcon(QStringLiteral(":/look/tick.svg")).paint(&painter, place);
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool selected = list_.Selected(index.row());
  const RowPaint look =
      list_.multiple() ? multiplePaint(selected, enabled) : singlePaint(list_.Colours(index.row()), selected, enabled);
  painter->save();
  painter->fillRect(option.rect, look.ground);
  QRect place = option.rect.adjusted(margin, 0, -margin, 0);
  if (list_.multiple()) {
    const int side = static_cast<int>(option.fontMetrics.height() * markSide);
    paintMark(*painter, {place.left() - 2, place.center().y() - side / 2, side, side}, selected, enabled);
    place.setLeft(place.left() + side + margin - 2);
  }
  QFont font = option.font;
  font.setBold(look.bold);
  painter->setFont(font);
  painter->setPen(look.text);
  const QString text = index.data(Qt::DisplayRole).toString();
  painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextDontClip,
                    QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    painter->setPen(QPen(selected && !list_.multiple() ? hue::panel : hue::accent, 1, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
  painter->restore();
}

}  // namespace pantrigo
