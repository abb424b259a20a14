#pragma once

#include <initializer_list>
#include <string_view>

#include "desktop/dialogs/widgets.h"

class QLabel;
class QLayout;
class QString;
class QWidget;

namespace pantrigo {

/// The label as one line that is wide enough for its present text, and for `widest`, at the canvas's text size.
QLabel& oneLine(const Widgets& widget, std::string_view name, const QWidget& canvas, const QString& widest);
QLabel& oneLine(const Widgets& widget, std::string_view name, const QWidget& canvas);

/// The box, wide enough for that many characters.
QWidget& boxOfWidth(const Widgets& widget, std::string_view name, const QWidget& canvas, int characters);

/// The frame over its filled layout: margins with room for the caption above, and no narrower than the caption.
QWidget& framed(const FormView& view, std::string_view name, const QWidget& canvas, QLayout& contents);

/// A line with the buttons at its right end, all as wide as the widest, in their order from the left.
QLayout* buttonLine(const FormView& view, std::initializer_list<std::string_view> buttons);

/// The dialog: its frame, and below it the line with the buttons.
void stack(const FormView& view, QWidget& canvas, QWidget& frame, std::initializer_list<std::string_view> buttons);

}  // namespace pantrigo
