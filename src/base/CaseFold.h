// Comparison without regard to case, the same in every locale.
#pragma once

#include <string>
#include <string_view>

namespace zdx {

// The simple case folding of `point`: one character for one, never more.
char32_t FoldCase(char32_t point);
// `text` with each character folded: equal for texts that CompareIgnoringCase finds equal.
std::wstring FoldCase(std::wstring_view text);

// 0 if the texts are equal when folded; otherwise negative or positive as `a` stands before or
// behind `b` in the order of folded code points.
int CompareIgnoringCase(std::wstring_view a, std::wstring_view b);

}  // namespace zdx
