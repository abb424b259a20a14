#include "support/properties.h"

#include <algorithm>
#include <span>

namespace pantrigo {

namespace {

using ControlProperty = Property<Control>;
using FormProperty = Property<Form>;

template <class Kind>
const Kind& as(const Control& control) {
  return static_cast<const Kind&>(control);
}

template <class Kind>
Kind& as(Control& control) {
  return static_cast<Kind&>(control);
}

/// The last part of the name of a picture's file.
std::string baseName(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

const ControlProperty common[] = {
    {"Enabled", [](const Control& c) -> Value { return c.Enabled(); },
     [](Control& c, bool value) { c.setEnabled(value); }},
    {"Visible", [](const Control& c) -> Value { return c.Visible(); },
     [](Control& c, bool value) { c.setVisible(value); }},
    {"Left", [](const Control& c) -> Value { return c.Left(); }, [](Control& c, double value) { c.setLeft(value); }},
    {"Top", [](const Control& c) -> Value { return c.Top(); }, [](Control& c, double value) { c.setTop(value); }},
    {"Width", [](const Control& c) -> Value { return c.Width(); }, [](Control& c, double value) { c.setWidth(value); }},
    {"Height", [](const Control& c) -> Value { return c.Height(); },
     [](Control& c, double value) { c.setHeight(value); }},
    {"MousePointer", [](const Control& c) -> Value { return c.MousePointer(); },
     [](Control& c, double value) { c.setMousePointer(static_cast<int>(value)); }},
};

const ControlProperty ofTextBoxes[] = {
    {"Text", [](const Control& c) -> Value { return as<TextBox>(c).Text(); },
     [](Control& c, const std::string& value) { as<TextBox>(c).setText(value); }},
    {"MaxLength", [](const Control& c) -> Value { return static_cast<long>(as<TextBox>(c).MaxLength()); },
     [](Control& c, double value) { as<TextBox>(c).setMaxLength(static_cast<std::size_t>(value)); }},
    {"ForeColor", [](const Control& c) -> Value { return as<TextBox>(c).ForeColor(); },
     [](Control& c, double value) { as<TextBox>(c).setForeColor(static_cast<int>(value)); }},
};

const ControlProperty ofCombos[] = {
    {"Text", [](const Control& c) -> Value { return as<ComboBox>(c).Text(); },
     [](Control& c, const std::string& value) { as<ComboBox>(c).setText(value); }},
    {"ListCount", [](const Control& c) -> Value { return as<ComboBox>(c).ListCount(); }, {}},
    {"ListIndex", [](const Control& c) -> Value { return as<ComboBox>(c).ListIndex(); },
     [](Control& c, double value) { as<ComboBox>(c).setListIndex(static_cast<int>(value)); }},
};

const ControlProperty ofLists[] = {
    {"ListCount", [](const Control& c) -> Value { return as<ListBox>(c).ListCount(); }, {}},
    {"ListIndex", [](const Control& c) -> Value { return as<ListBox>(c).ListIndex(); },
     [](Control& c, double value) { as<ListBox>(c).setListIndex(static_cast<int>(value)); }},
    {"Row", [](const Control& c) -> Value { return as<ListBox>(c).Row(); },
     [](Control& c, double value) { as<ListBox>(c).setRow(static_cast<int>(value)); }},
    {"Sorted", [](const Control& c) -> Value { return as<ListBox>(c).Sorted(); },
     [](Control& c, double value) { as<ListBox>(c).setSorted(static_cast<int>(value)); }},
    {"TopIndex", [](const Control& c) -> Value { return as<ListBox>(c).TopIndex(); },
     [](Control& c, double value) { as<ListBox>(c).setTopIndex(static_cast<int>(value)); }},
    {"SelCount", [](const Control& c) -> Value { return as<ListBox>(c).SelCount(); }, {}},
};

const ControlProperty ofCaptioned[] = {
    {"Caption", [](const Control& c) -> Value { return as<CaptionedControl>(c).Caption(); },
     [](Control& c, const std::string& value) { as<CaptionedControl>(c).setCaption(value); }},
};

const ControlProperty ofCheckBoxes[] = {
    {"Value", [](const Control& c) -> Value { return as<CheckBox>(c).Value(); },
     [](Control& c, bool value) { as<CheckBox>(c).setValue(value); }},
};

const ControlProperty ofOptions[] = {
    {"Value", [](const Control& c) -> Value { return as<OptionButton>(c).Value(); },
     [](Control& c, bool value) { as<OptionButton>(c).setValue(value); }},
};

const ControlProperty ofImages[] = {
    {"Picture",
     [](const Control& c) -> Value { return c.Visible() ? baseName(as<Image>(c).Picture().name) : Value(""); },
     {}},
};

const ControlProperty ofNameLists[] = {
    {"ListCount", [](const Control& c) -> Value { return as<NameList>(c).ListCount(); }, {}},
    {"ListIndex", [](const Control& c) -> Value { return as<NameList>(c).ListIndex(); },
     [](Control& c, double value) { as<NameList>(c).setListIndex(static_cast<int>(value)); }},
};

const ControlProperty ofDriveLists[] = {
    {"Drive", [](const Control& c) -> Value { return as<DriveList>(c).Drive(); },
     [](Control& c, const std::string& value) { as<DriveList>(c).setDrive(value); }},
};

const ControlProperty ofFolderLists[] = {
    {"Path", [](const Control& c) -> Value { return as<FolderList>(c).Path(); },
     [](Control& c, const std::string& value) { as<FolderList>(c).setPath(value); }},
};

const ControlProperty ofFileLists[] = {
    {"Path", [](const Control& c) -> Value { return as<FileList>(c).Path(); },
     [](Control& c, const std::string& value) { as<FileList>(c).setPath(value); }},
    {"Pattern", [](const Control& c) -> Value { return as<FileList>(c).Pattern(); },
     [](Control& c, const std::string& value) { as<FileList>(c).setPattern(value); }},
    {"FileName", [](const Control& c) -> Value { return as<FileList>(c).FileName(); },
     [](Control& c, const std::string& value) { as<FileList>(c).setFileName(value); }},
};

const ControlProperty ofDialogs[] = {
    {"Flags", [](const Control& c) -> Value { return as<CommonDialog>(c).Flags(); },
     [](Control& c, double value) { as<CommonDialog>(c).setFlags(static_cast<int>(value)); }},
    {"HelpFile", [](const Control& c) -> Value { return as<CommonDialog>(c).HelpFile(); },
     [](Control& c, const std::string& value) { as<CommonDialog>(c).setHelpFile(value); }},
    {"HelpCommand", [](const Control& c) -> Value { return as<CommonDialog>(c).HelpCommand(); },
     [](Control& c, double value) { as<CommonDialog>(c).setHelpCommand(static_cast<int>(value)); }},
    {"HelpContext", [](const Control& c) -> Value { return as<CommonDialog>(c).HelpContext(); },
     [](Control& c, double value) { as<CommonDialog>(c).setHelpContext(static_cast<int>(value)); }},
    {"Action", [](const Control& c) -> Value { return as<CommonDialog>(c).Action(); },
     [](Control& c, double value) {
       as<CommonDialog>(c).setAction(static_cast<DialogAction>(static_cast<int>(value)));
     }},
};

const ControlProperty ofImageLists[] = {
    {"ImageWidth", [](const Control& c) -> Value { return as<ImageList>(c).side(); }, {}},
    {"ImageHeight", [](const Control& c) -> Value { return as<ImageList>(c).side(); }, {}},
};

const ControlProperty ofToolBars[] = {
    {"ButtonWidth", [](const Control& c) -> Value { return as<ToolBar>(c).ButtonWidth(); },
     [](Control& c, double value) { as<ToolBar>(c).setButtonWidth(value); }},
    {"ImageList",
     [](const Control& c) -> Value {
       const ImageList* list = as<ToolBar>(c).imageList();
       return list == nullptr ? Value("") : Value(list->Name());
     },
     {}},
};

const FormProperty ofForms[] = {
    {"Caption", [](const Form& f) -> Value { return f.Caption(); },
     [](Form& f, const std::string& value) { f.setCaption(value); }},
    {"MousePointer", [](const Form& f) -> Value { return f.MousePointer(); },
     [](Form& f, double value) { f.setMousePointer(static_cast<int>(value)); }},
    {"Left", [](const Form& f) -> Value { return f.Left(); },
     [](Form& f, double value) {
       f.setBox({value, f.Top(), f.Width(), f.Height()});
     }},
    {"Top", [](const Form& f) -> Value { return f.Top(); },
     [](Form& f, double value) {
       f.setBox({f.Left(), value, f.Width(), f.Height()});
     }},
    {"Width", [](const Form& f) -> Value { return f.Width(); },
     [](Form& f, double value) {
       f.setBox({f.Left(), f.Top(), value, f.Height()});
     }},
    {"Height", [](const Form& f) -> Value { return f.Height(); },
     [](Form& f, double value) {
       f.setBox({f.Left(), f.Top(), f.Width(), value});
     }},
};

struct KindProperties {
  ControlKind kind;
  std::span<const ControlProperty> properties;
};

const KindProperties ofKinds[] = {
    {ControlKind::TextBox, ofTextBoxes},    {ControlKind::ComboBox, ofCombos},
    {ControlKind::ListBox, ofLists},        {ControlKind::Label, ofCaptioned},
    {ControlKind::Frame, ofCaptioned},      {ControlKind::CheckBox, ofCaptioned},
    {ControlKind::CheckBox, ofCheckBoxes},  {ControlKind::OptionButton, ofCaptioned},
    {ControlKind::OptionButton, ofOptions}, {ControlKind::CommandButton, ofCaptioned},
    {ControlKind::MenuEntry, ofCaptioned},  {ControlKind::Image, ofImages},
    {ControlKind::DriveList, ofNameLists},  {ControlKind::DriveList, ofDriveLists},
    {ControlKind::FolderList, ofNameLists}, {ControlKind::FolderList, ofFolderLists},
    {ControlKind::FileList, ofNameLists},   {ControlKind::FileList, ofFileLists},
    {ControlKind::ToolBar, ofToolBars},     {ControlKind::CommonDialog, ofDialogs},
    {ControlKind::ImageList, ofImageLists},
};

template <class Owner>
const Property<Owner>* findIn(std::span<const Property<Owner>> properties, std::string_view name) {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const Property<Owner>& property) { return property.name == name; });
  return found == properties.end() ? nullptr : &*found;
}

}  // namespace

const Property<Control>* findProperty(const Control& control, std::string_view name) {
  if (const ControlProperty* found = findIn<Control>(common, name)) return found;
  for (const KindProperties& entry : ofKinds) {
    if (entry.kind != control.kind()) continue;
    if (const ControlProperty* found = findIn<Control>(entry.properties, name)) return found;
  }
  return nullptr;
}

const Property<Form>* findProperty(std::string_view name) {
  return findIn<Form>(ofForms, name);
}

}  // namespace pantrigo
