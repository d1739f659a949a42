// A balloon that explains the item it is declared in, until the user closes it. Texts that are higher than the window
// scroll.
//
//     LKRoundButton {
//         id: whiteboard
//         buttonIcon: "whiteboard"
//
//         WCoachmark {
//             titleText: "Whiteboard"
//             bodyText: "Draw together during the meeting."
//             visible: true
//             onManualClosed: settings.whiteboardExplained = true
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0
import LumakitQml.Private 1.0

WToolTip {
    id: control

    property string titleText: ""
    property string bodyText: ""
    // What a screen reader says when it is shown.
    property string accessibleName: titleText + (titleText === "" || bodyText === "" ? "" : ". ") + bodyText
    property string titleTextColorSetName: "coachmarkteaching-button-secondary-text"
    property string bodyTextColorSetName: "coachmarkteaching-button-secondary-text"
    property font titleFont: FontConstants.highlightPrimary
    property font bodyFont: FontConstants.bodySecondary
    // Whether it was closed by the keyboard or a screen reader, not by the mouse.
    property bool closedByKey: false
    // Whether the close button gets the keyboard's focus with the opening.
    property bool acquireFocusWhenShown: false
    property Item closeButton: null
    // The object names of the texts, for tests.
    property string coachMarkTitleObjName: "coachMarkTitle"
    property string coachMarkBodyObjName: "coachMarkBody"
    property string closeButtonTooltip: qsTr("Close")

    // The user closed it, by its button or by Escape.
    signal manualClosed

    function closeByUser(byKey: bool): void {
        closedByKey = byKey;
        close();
        manualClosed();
    }

    arrowSize: 10
    textPadding: 12
    backgroundColorSetName: "coachmarkteaching-background"
    borderColorSetName: "coachmarkteaching-button-secondary-border"
    // The name of the popup.
    text: accessibleName
    focus: acquireFocusWhenShown
    closePolicy: T.Popup.NoAutoClose

    onAboutToShow: {
        FocusReturn.remember(contentItem.parent);
        closedByKey = false;
    }
    onAboutToHide: FocusReturn.giveBack(contentItem.parent)

    contentItem: FocusScope {
        implicitWidth: Math.max(title.implicitWidth, body.implicitWidth) + button.width + 8
        implicitHeight: Math.max(button.height, texts.height)
        focus: true

        LayoutMirroring.enabled: control.parent?.LayoutMirroring.enabled ?? false
        LayoutMirroring.childrenInherit: true

        Keys.onEscapePressed: control.closeByUser(true)
        Keys.onUpPressed: bar.scrollBy(-bar.size / 4)
        Keys.onDownPressed: bar.scrollBy(bar.size / 4)

        Flickable {
            id: view

            readonly property real barRoom: bar.visible ? bar.width : 0

            anchors.left: parent.left
            anchors.right: button.left
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.rightMargin: 8
            contentHeight: texts.height
            interactive: contentHeight > height
            clip: interactive
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: LKScrollBar {
                id: bar
            }

            Column {
                id: texts

                x: bar.mirrored ? view.barRoom : 0
                width: view.width - view.barRoom
                topPadding: 2
                spacing: 4

                WText {
                    id: title

                    objectName: control.coachMarkTitleObjName
                    width: parent.width
                    visible: text !== ""
                    text: control.titleText
                    textColorSetName: control.titleTextColorSetName
                    font: control.titleFont
                    wrapMode: Text.Wrap

                    Accessible.role: Accessible.Heading
                }
                WText {
                    id: body

                    objectName: control.coachMarkBodyObjName
                    width: parent.width
                    visible: text !== ""
                    text: control.bodyText
                    textColorSetName: control.bodyTextColorSetName
                    font: control.bodyFont
                    wrapMode: Text.Wrap
                }
            }
        }
        WSvgIconButton {
            id: button

            anchors.right: parent.right
            implicitHeight: 24
            focus: true
            iconName: "close-bold"
            iconColorSetName: "coachmarkteaching-button-hyperlink-text"
            backgroundColorSetName: "coachmarkteaching-button-hyperlink-background"
            borderColorSetName: ""
            tooltip: control.closeButtonTooltip
            onTriggered: control.closeByUser(!pointer.clicks)
            Component.onCompleted: control.closeButton = button

            PointHandler {
                id: pointer

                property bool clicks: false

                onActiveChanged: {
                    if (active)
                        clicks = true;
                    else // the click comes after this
                        Qt.callLater(() => { clicks = false; });
                }
            }
        }
    }
}
