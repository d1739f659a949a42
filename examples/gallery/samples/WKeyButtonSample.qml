import LumakitQml 1.0

GallerySample {
    subject: key

    WKeyButton {
        id: key
        primary: "2"
        secondary: "ABC"
    }
    WKeyButton {
        primary: "7"
        secondary: "PQRS"
    }
    WKeyButton {
        primary: "#"
        backgroundColorSetName: "button-dialpad-special-background"
        textColorSetName: "button-dialpad-special-text-number"
    }
    WKeyButton {
        primary: "0"
        secondary: "+"
        enabled: false
    }
    WKeyButton {
        primary: "5"
        secondary: "JKL"
        diameter: 72
    }
}
