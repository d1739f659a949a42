import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: state

    WEmptyState {
        id: state
        svgImageName: "chat"
        svgImageSize: 64
        svgColorSetName: "label-secondary-text"
        title: "No messages yet"
        subtitle: "Write the first one, and everybody in the space will see it."
    }
    WEmptyState {
        width: 200
        svgImageName: "search"
        svgImageSize: 40
        svgColorSetName: "label-secondary-text"
        title: "Keine Suchergebnisse gefunden"
        subtitle: "Versuchen Sie es mit einem anderen Suchbegriff."
        borderColorSetName: "separator-primary"
        radius: 8
    }
    WEmptyState {
        title: "Without a picture"
        borderColorSetName: "separator-primary"
        radius: 8
    }
}
