#pragma once
// Plain models of the window's controls. The stages read and rewrite these exactly
// where the program reads and rewrites its window; the Qt front paints them and
// copies the user's edits back. No toolkit type appears here.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace pilarix {

struct Color {
    std::uint8_t r = 255, g = 255, b = 255;
    // A system colour index (19 = inactive caption text) instead of r, g, b; -1 for none.
    int system = -1;

    static constexpr Color rgb(std::uint8_t r, std::uint8_t g, std::uint8_t b) { return {r, g, b, -1}; }
    static constexpr Color sys(int index) { return {0, 0, 0, index}; }
    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color kWhite = Color::rgb(255, 255, 255);
inline constexpr Color kBlack = Color::rgb(0, 0, 0);
inline constexpr Color kRed = Color::rgb(255, 0, 0);
inline constexpr Color kDarkBlue = Color::rgb(0, 0, 192);
inline constexpr Color kInactiveCaptionText = Color::sys(19);

struct TextBox {
    std::string Text;
    bool Enabled = true;
    bool Visible = true;
    Color BackColor = kWhite;
    Color ForeColor = kBlack;
};

struct ComboBox {
    std::vector<std::string> List;
    std::string Text;
    bool Enabled = true;

    bool contains(const std::string& s) const
    {
        for (const auto& item : List)
            if (item == s)
                return true;
        return false;
    }
};

struct CheckBox {
    std::string Caption;
    int Value = 0; // 0 clear, 1 ticked, 2 grey
    bool Enabled = true;
    bool ticked() const { return Value == 1; }
};

struct OptionButton {
    std::string Caption;
    bool Value = false;
    bool Enabled = true;
    bool Visible = true;
};

struct Label {
    std::string Caption;
    bool Visible = true;
};

struct CommandButton {
    std::string Caption;
    bool Enabled = true;
    bool Visible = true;
};

// Selects one option button of a group and clears the others, as clicking it does.
template <typename... Opts>
void selectOption(OptionButton& chosen, Opts&... others)
{
    ((others.Value = false), ...);
    chosen.Value = true;
}

} // namespace pilarix
