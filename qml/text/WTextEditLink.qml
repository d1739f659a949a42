// A read-only text with links. A click on a link, or Enter, Return or Space when Tab has come to it, emits
// linkActivated(link). `text` is plain; `markup` takes a little HTML on purpose: links and the tags of emphasis, lines
// and lists. Everything else of HTML is left out, so that markup loads nothing.
//
//     WTextEditLink {
//         markup: 'Read the <a href="terms">terms of use</a>.'
//         onLinkActivated: link => meeting.open(link)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

WTextEdit {
    id: root

    // The area over the text that gives the cursor its shape; it takes no buttons.
    property alias mouseArea: area
    // Shown when the cursor rests on the text.
    property string tooltip: ""
    property string markup: ""
    property string linkColorSetName: "hyperlink-accent-text"
    property var linkColorSet: themeType === undefined ? null : App.getColorSet(linkColorSetName)
    readonly property color linkColor: ThemeUtils.getColor({ enabled: enabled }, linkColorSet)
    // The link that the keyboard has come to; empty without.
    readonly property string currentLink: current < 0 ? "" : links[current]?.link ?? ""
    // The links as {link, start, end}, once they are needed.
    property var links: null
    property int current: -1

    function withoutRisk(html: string): string {
        const kept = /^\/?(a|b|br|code|em|i|li|ol|p|pre|s|strong|sub|sup|u|ul)(?![a-z0-9])/i;
        return html.replace(/<([^>]*)(>|$)/g, (tag, inside) => {
            const name = kept.exec(inside)?.[0].toLowerCase();
            if (name !== "a")
                return name ? "<" + name + ">" : "";
            const href = /\shref\s*=\s*("[^"]*"|'[^']*'|[^\s"']+)/i.exec(inside)?.[1] ?? "";
            const link = href.replace(/^["']|["']$/g, "").replace(/"/g, "&quot;").replace(/</g, "&lt;");
            return '<a href="' + link + '" style="color:' + linkColor + '">';
        });
    }

    function findLinks(): void {
        links = [];
        for (let i = 0; i < length; ++i) {
            const left = positionToRectangle(i);
            const right = positionToRectangle(i + 1);
            const x = right.y === left.y ? (left.x + right.x) / 2 : left.x + 1;
            const link = linkAt(x, left.y + left.height / 2);
            const last = links[links.length - 1];
            if (link === "")
                continue;
            if (last?.link === link && getText(last.end, i).trim() === "") // no link is seen at the end of a line
                last.end = i + 1;
            else
                links.push({ link: link, start: i, end: i + 1 });
        }
    }

    // Selects the next link in that direction. Returns whether there is one.
    function goToLink(step: int): bool {
        if (!links)
            findLinks();
        const next = current < 0 && step < 0 ? links.length - 1 : current + step;
        current = next < links.length ? next : -1;
        if (current < 0)
            deselect();
        else
            select(links[current].start, links[current].end);
        return current >= 0;
    }

    function activateByKey(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            activateCurrentLink();
    }

    function activateCurrentLink(): void {
        if (current < 0)
            goToLink(1);
        if (currentLink !== "")
            linkActivated(currentLink);
    }

    text: markup === "" ? "" : withoutRisk(markup)
    textFormat: markup === "" ? TextEdit.PlainText : TextEdit.RichText
    readOnly: true

    onMarkupChanged: {
        current = -1;
        links = null;
    }
    onActiveFocusChanged: {
        if (!activeFocus)
            current = -1;
        else if (visualFocus)
            goToLink(1);
    }

    Keys.onTabPressed: event => event.accepted = goToLink(1)
    Keys.onBacktabPressed: event => event.accepted = goToLink(-1)
    Keys.onReturnPressed: event => activateByKey(event)
    Keys.onEnterPressed: event => activateByKey(event)
    Keys.onSpacePressed: event => activateByKey(event)

    Accessible.role: Accessible.Link
    Accessible.name: length === 0 ? tooltip : getText(0, length)
    Accessible.onPressAction: {
        if (enabled)
            activateCurrentLink();
    }

    MouseArea {
        id: area
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        hoverEnabled: true
        cursorShape: root.hoveredLink === "" ? Qt.IBeamCursor : Qt.PointingHandCursor
    }
    ToolTipTrigger {
        text: root.tooltip
    }
}
