#pragma once

namespace dravik {

// How the user wants the program to look: as the desktop does, or light or dark whatever the desktop says.
enum class LookChoice : unsigned char { Desktop, Light, Dark };

// Gives the program that look at once. Until it is called, the desktop's.
void ChooseLook(LookChoice look);
[[nodiscard]] LookChoice ChosenLook();

// The sizes of text that one may choose, in percent of the desktop's.
inline constexpr int TextSizes[] = {80, 90, 100, 110, 125, 150, 175, 200};
// Gives all windows text of that size (one of TextSizes). Fonts that a widget has made its own stay until it is made anew.
void ChooseTextSize(int percent);

} // namespace dravik
