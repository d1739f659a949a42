import LumakitQml 1.0

GallerySample {
    subject: area

    LKTextAreaBase {
        id: area
        text: "The agenda:\n1. Numbers\n2. Plans"
    }
    LKTextAreaBase {
        placeholderText: "Description"
    }
    LKTextAreaBase {
        text: "Read-only"
        readOnly: true
    }
    LKTextAreaBase {
        text: "Disabled"
        enabled: false
    }
}
