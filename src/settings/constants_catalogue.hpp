// The Constants menu's catalogue: the ten constants of a first start, reading the
// entries into the menu when the main window opens, and the preferences window's
// part: its copy of the entries while it edits them, and the menu and keys brought
// up to date when it closes.
#pragma once

#include <span>

#include "settings/app_context.hpp"

namespace tessarine {

struct DefaultConstant {
  const char* name;
  const char* value;
};
std::span<const DefaultConstant> DefaultConstants();

// More entries than this the editor refuses.
inline constexpr int kMaxConstants = 200;

// Fills the menu and the arrays from the store. Before the count's key was ever
// written, the ten defaults stand in and the names stay out of ConstantName.
void LoadConstants(AppContext& app);
// The preferences window opens: the arrays take the menu's names and the stored values.
void BeginEditingConstants(AppContext& app);
// The preferences window closes: the menu and the keys follow the arrays.
void ApplyConstants(AppContext& app);
// "Defaults" of the constants page: the first ten places only; the rest stay unused.
void RestoreDefaultConstants(GlobalStuff& globals);

}  // namespace tessarine
