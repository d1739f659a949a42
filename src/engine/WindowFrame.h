#pragma once

/// The border of a frameless window. Free of Qt and of the platform's headers.
namespace WindowFrame {

/// In screen coordinates; right and bottom lie outside.
struct Rect
{
    int left;
    int top;
    int right;
    int bottom;
};

/// What a point of a window's border is for, by the numbers of the native hit test.
enum HitCode : int {
    Nowhere = 0,
    Left = 10,
    Right = 11,
    Top = 12,
    TopLeft = 13,
    TopRight = 14,
    Bottom = 15,
    BottomLeft = 16,
    BottomRight = 17,
};

/// The hit code of a point for a border of that width; 0 for a point that is not on the border. Corners come first.
/// A vertical border reaches above and below the rectangle: the system only asks for points inside the window.
constexpr int borderHitCode(const Rect &rect, int x, int y, int borderWidth)
{
    const bool left = rect.left <= x && x < rect.left + borderWidth;
    const bool right = rect.right - borderWidth <= x && x < rect.right;
    const bool top = rect.top <= y && y < rect.top + borderWidth;
    const bool bottom = rect.bottom - borderWidth <= y && y < rect.bottom;

    if (left && top)
        return TopLeft;
    if (right && top)
        return TopRight;
    if (left && bottom)
        return BottomLeft;
    if (right && bottom)
        return BottomRight;
    if (left)
        return Left;
    if (right)
        return Right;
    if (top)
        return Top;
    if (bottom)
        return Bottom;
    return Nowhere;
}

} // namespace WindowFrame
