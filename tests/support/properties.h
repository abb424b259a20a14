#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/store/value.h"

namespace pantrigo {

/// How a property of an owner is written, by the type of its value; none for one that can only be read.
template <class Owner>
using Setter = std::variant<std::monostate, void (*)(Owner&, bool), void (*)(Owner&, double),
                            void (*)(Owner&, const std::string&)>;

/// A property of a form or control, under the name by which the program's own code has it.
template <class Owner>
struct Property {
  std::string_view name;
  Value (*get)(const Owner&);
  Setter<Owner> set;
};

/// The property of that name that controls of this kind have; null when they have none.
[[nodiscard]] const Property<Control>* findProperty(const Control& control, std::string_view name);

/// The property of that name that all forms have, but for `Loaded` and `Visible`; null when they have none.
[[nodiscard]] const Property<Form>* findProperty(std::string_view name);

}  // namespace pantrigo
