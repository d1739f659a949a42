import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WTextEditLink {
        id: edit
        markup: 'Read the <a href="terms">terms of use</a> and the <a href="privacy">privacy statement</a>.'
        tooltip: "Two links"
    }
    WTextEditLink {
        width: 240
        markup: "A <b>long</b> text is wrapped: <a href=\"help\">Weitere Informationen zur Bildschirmfreigabe</a>"
    }
    WTextEditLink {
        text: "<b>Plain</b> as it stands"
    }
    WTextEditLink {
        markup: 'Disabled: <a href="terms">terms of use</a>'
        enabled: false
    }
}
