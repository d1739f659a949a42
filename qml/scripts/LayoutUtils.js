.pragma library

// Where an item and its margins end below its own y, in the coordinates of its parent.
function bottomY(widget) {
    return widget.y + widget.implicitHeight + widget.anchors.topMargin + widget.anchors.bottomMargin;
}

// The item's rectangle on the screen.
function globalRect(widget) {
    const topLeft = widget.mapToGlobal(0, 0);
    return Qt.rect(topLeft.x, topLeft.y, widget.width, widget.height);
}
