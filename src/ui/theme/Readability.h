#pragma once

#include <QColor>

namespace coinlight {

/// The contrast of two colours as the accessibility guidelines measure it, from 1 (the same)
/// to 21 (black on white).
double ContrastRatio(const QColor& a, const QColor& b);

/// Text that reaches this ratio against its background reads without effort at list sizes.
inline constexpr double kReadableContrast = 3.0;

inline bool Readable(const QColor& text, const QColor& back) {
    return ContrastRatio(text, back) >= kReadableContrast;
}

/// The red that marks missing files, as it reads best on `back`: pure red where that can be
/// read, otherwise the darker or lighter red that stands out most. It is always a red.
QColor ReadableRed(const QColor& back);

} // namespace coinlight
