// A choice of one from a list that drops down. Letters that are typed one soon after the other find the row that begins
// with them; a list that is higher than popupMaxHeight scrolls.
//
//     LKComboBox {
//         model: ["Front camera", "Back camera"]
//         onActivated: index => video.useCamera(index)
//     }
import QtQuick

WComboBox {
    id: control

    // The accessible name: what is chosen here.
    property string accessibleText: ""
    readonly property WMenu.TypeAhead typeAhead: WMenu.TypeAhead {}

    function findTyped(letter: string): void {
        const texts = Array.from({ length: count }, (_, row) => textAt(row));
        const current = popup.visible ? highlightedIndex : currentIndex;
        const row = typeAhead.find(letter, texts, current);
        if (row >= 0 && popup.visible)
            highlight(row - current);
        else if (row >= 0)
            choose(row);
    }

    Keys.onPressed: event => {
        if (event.accepted || editable || !typeAhead.accepts(event))
            return;
        findTyped(event.text);
        event.accepted = true;
    }

    Accessible.name: accessibleText !== "" ? accessibleText : tooltip !== "" ? tooltip : displayText
}
