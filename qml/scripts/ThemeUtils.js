.pragma library

// The colour of a control's state from a colour set.

// For controls: disabled, pressed, hovered, focused, checked, in this order. A focus colour equal to the normal one
// counts as none. An invalid set gives "transparent". Nothing is checked here: items that come and go have no set for
// a moment, and too many reports would be false.
function getColor(widget, colorSet) {
    if (!colorSet?.isValid)
        return "transparent";
    if (!widget)
        return colorSet.normal;
    if (widget.enabled === false)
        return colorSet.disabled;
    if (widget.pressed)
        return colorSet.pressed;
    if (widget.hovered)
        return colorSet.hovered;
    return focusedOrChecked(widget, colorSet);
}

// For editable text: like getColor(), without a pressed state; a read-only field stays normal. Reports null arguments,
// invalid sets and unexpected colours to the console.
function getTextFieldColor(widget, colorSet) {
    checkInput("getTextFieldColor", widget, colorSet);
    const color = textFieldColor(widget, colorSet);
    checkOutput("getTextFieldColor", widget, colorSet, color);
    return color;
}

function textFieldColor(widget, colorSet) {
    if (!colorSet?.isValid)
        return "transparent";
    if (!widget || widget.readOnly)
        return colorSet.normal;
    if (widget.enabled === false)
        return colorSet.disabled;
    if (widget.hovered)
        return colorSet.hovered;
    return focusedOrChecked(widget, colorSet);
}

function focusedOrChecked(widget, colorSet) {
    if (widget.activeFocus && colorSet.focused !== colorSet.normal)
        return colorSet.focused;
    if (widget.checked)
        return colorSet.checked;
    return colorSet.normal;
}

function checkInput(functionName, widget, colorSet) {
    if (!widget)
        console.error(functionName, ": null widget when getting color for colorSet:", colorSet?.name);
    if (!colorSet)
        console.error(functionName, ": null colorset for widget:", widget);
    else if (!colorSet.isValid)
        console.error(functionName, ": invalid colorset:", colorSet.name, "for widget:", widget);
}

function checkOutput(functionName, widget, colorSet, color) {
    if (!color || !colorSet?.isValid)
        console.error(functionName, "unexpected color:", color, "colorSet.name:", colorSet?.name,
                      "for widget:", widget);
}
