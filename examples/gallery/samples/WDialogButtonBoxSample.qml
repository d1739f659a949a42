import LumakitQml 1.0

GallerySample {
    subject: box

    WDialogButtonBox {
        id: box
        width: 528
        okText: "Save"
        middleText: "Don't save"
        cancelText: "Cancel"
    }
    WDialogButtonBox {
        width: 528
        backgroundColorSetName: "panel-tertiary-background"
        okText: "Delete"
        okBackgroundColor: "button-cancel-fill-background"
        okBorderColor: "button-cancel-fill-border"
        okTextColor: "button-cancel-fill-text"
        cancelText: "Cancel"
    }
    WDialogButtonBox {
        okText: "Disabled"
        okEnabled: false
    }
}
