pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: first

    LKIconButton {
        id: first
        buttonType: LKButtonType.Favorite
        checkable: true
        Accessible.name: "Favourite"
    }
    Repeater {
        model: 6

        LKIconButton {
            required property int index

            buttonType: index + 1
            Accessible.name: "Type " + (index + 1)
        }
    }
    Repeater {
        model: 6

        LKIconButton {
            required property int index

            buttonType: index + 1
            checkable: true
            checked: true
            Accessible.name: "Active type " + (index + 1)
        }
    }
    LKIconButton {
        buttonType: LKButtonType.Settings
        enabled: false
        Accessible.name: "Disabled"
    }
    LKIconButton {
        buttonType: LKButtonType.Pen
        buttonSize: LKButtonSize.XL
        Accessible.name: "Large"
    }
}
