#pragma once

namespace brinewright {

inline constexpr const char* Version_Text = "7.00 2026-04-21";

} // namespace brinewright
