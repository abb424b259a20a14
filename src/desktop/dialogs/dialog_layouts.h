#pragma once

class QWidget;

namespace pantrigo {

class FormView;

/// Lays out the widgets of a dialog that has a layout of its own, on the canvas. Gives false for a form that has none:
/// its controls then stand at their places in twips.
bool layOutDialog(const FormView& view, QWidget& canvas);

// One function a dialog, in a file of its own.
void layOutAbout(const FormView& view, QWidget& canvas);
void layOutCategory(const FormView& view, QWidget& canvas);
void layOutIngredient(const FormView& view, QWidget& canvas);
void layOutNutrition(const FormView& view, QWidget& canvas);
void layOutOptions(const FormView& view, QWidget& canvas);
void layOutOven(const FormView& view, QWidget& canvas);
void layOutSettings(const FormView& view, QWidget& canvas);
void layOutSource(const FormView& view, QWidget& canvas);
void layOutView(const FormView& view, QWidget& canvas);

}  // namespace pantrigo
