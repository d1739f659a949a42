.pragma library

// Outlines around a control, stroked on the 2D context of a canvas that is larger than the control by extraSpace on
// every side: focus rings. The ring is lineThickness thick and leaves a gap of `offset` to the control. All lengths
// are in pixels.

// Bit flags.
const RectangularCorners = Object.freeze({ None: 0, TopLeft: 1, TopRight: 2, BottomLeft: 4, BottomRight: 8 });

// A ring around a pill. On a canvas that is taller than wide it is a rectangle with a corner radius of 4 instead.
function drawRoundedSidesOutline(ctx, height, width, extraSpace, lineThickness, offset, color) {
    if (height > width) {
        drawRoundedCornerRectangleOutline(ctx, height, width, extraSpace, lineThickness, offset, color, 4);
        return;
    }
    const top = centerLine(extraSpace, lineThickness, offset);
    const bottom = height - top;
    const radius = (bottom - top) / 2;
    const centerY = height / 2;
    const left = height / 2; // where the half circles begin, not the edge
    const right = width - height / 2;

    begin(ctx, lineThickness, color);
    ctx.moveTo(left, top);
    ctx.lineTo(right, top);
    ctx.arc(right, centerY, radius, 1.5 * Math.PI, 0.5 * Math.PI, false);
    ctx.lineTo(left, bottom);
    ctx.arc(left, centerY, radius, 0.5 * Math.PI, 1.5 * Math.PI, false);
    ctx.stroke();
}

// A ring around a rectangle. The radius is that of the ring's centre line; a negative one counts as 0.
function drawRoundedCornerRectangleOutline(ctx, height, width, extraSpace, lineThickness, offset, color, radius) {
    const inset = centerLine(extraSpace, lineThickness, offset);
    begin(ctx, lineThickness, color);
    addRectangle(ctx, height, width, inset, Math.max(radius, 0), RectangularCorners.None);
    ctx.stroke();
}

// A ring around a rectangle whose corners are square where their flag is set. The radius counts from the canvas's edge,
// not from the ring.
function drawRectangularAndRoundCornerOutline(ctx, height, width, extraSpace, lineThickness, offset, color, radius,
                                              corners) {
    const inset = centerLine(extraSpace, lineThickness, offset);
    begin(ctx, lineThickness, color);
    addRectangle(ctx, height, width, inset, Math.max(radius - inset, 0), corners);
    ctx.stroke();
}

// The same corners in a mirrored layout.
function swapRectangularCornersLeftRight(corners) {
    const left = RectangularCorners.TopLeft | RectangularCorners.BottomLeft;
    const right = RectangularCorners.TopRight | RectangularCorners.BottomRight;
    return (corners & left) << 1 | (corners & right) >> 1;
}

// How far the middle of the ring is from the canvas's edge.
function centerLine(extraSpace, lineThickness, offset) {
    return extraSpace - offset - lineThickness / 2;
}

function begin(ctx, lineThickness, color) {
    ctx.beginPath();
    ctx.strokeStyle = color;
    ctx.lineWidth = lineThickness;
}

// Clockwise from the left end of the top edge.
function addRectangle(ctx, height, width, inset, radius, squareCorners) {
    const right = width - inset;
    const bottom = height - inset;
    const corner = (flag, x, y, centerX, centerY, startAngle, endAngle) => {
        if (squareCorners & flag)
            ctx.lineTo(x, y);
        else
            ctx.arc(centerX, centerY, radius, startAngle, endAngle, false);
    };

    ctx.moveTo(inset + radius, inset);
    ctx.lineTo(right - radius, inset);
    corner(RectangularCorners.TopRight, right, inset, right - radius, inset + radius, 1.5 * Math.PI, 0);
    ctx.lineTo(right, bottom - radius);
    corner(RectangularCorners.BottomRight, right, bottom, right - radius, bottom - radius, 0, 0.5 * Math.PI);
    ctx.lineTo(inset + radius, bottom);
    corner(RectangularCorners.BottomLeft, inset, bottom, inset + radius, bottom - radius, 0.5 * Math.PI, Math.PI);
    ctx.lineTo(inset, inset + radius);
    corner(RectangularCorners.TopLeft, inset, inset, inset + radius, inset + radius, Math.PI, 1.5 * Math.PI);
    if (squareCorners & RectangularCorners.TopLeft)
        ctx.lineTo(inset + radius, inset); // back to where the arc would have ended
}
