#pragma once

#include "automation/json_edge.hpp"
#include "platform/controls.hpp"
#include "platform/form.hpp"

#include <optional>
#include <string_view>

namespace brinewright {

// How a user can give a control a value through one of its properties.
enum class Settable { Never, Value, By_Number, By_Text };

// One row of the table of what can be read of controls. Read comes back with nothing where a kind of control
// has no such property.
struct Control_Property {
    const char* Name;
    std::optional<Json> (*Read)(const Control& Of);
    Settable Set = Settable::Never;
    bool In_List = false; // shown by list, besides being readable
};

struct Form_Property {
    const char* Name;
    Json (*Read)(const Form& Of);
    // Where a user moves or sizes a window; null for what only the program sets. Limits are checked by the
    // caller.
    void (*Set)(Form& Of, float Twentieths) = nullptr;
};

// Null when there is none of that name, or the control has no such property.
const Control_Property* Find_Property(const Control& Of, std::string_view Name);
const Form_Property* Find_Property(std::string_view Name);

// What the control holds: its value, and for a button or a frame, which hold none, the caption.
Json Default_Json(const Control& Of);

// Path, kind and the properties: all of them, or those that a list shows.
Json Control_Json(const Control& Of, bool All);
Json Form_Json(const Form& Of);

} // namespace brinewright
