import LumakitQml 1.0

GallerySample {
    subject: area

    LKTextAreaBase {
        id: area
        text: "The agenda:\n1. Numbers\n2. Plans"
        placeholderText: "Agenda"
    }
    LKTextAreaBase {
        placeholderText: "Description"
    }
    LKTextAreaBase {
        text: "Read-only"
        readOnly: true
        placeholderText: "Read-only"
    }
    LKTextAreaBase {
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
}
