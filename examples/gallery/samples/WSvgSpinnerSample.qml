import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: spinner

    WSvgSpinner {
        id: spinner
    }
    WSvgSpinner {
        width: 16
        height: 16
    }
    WSvgSpinner {
        width: 40
        height: 40
        rotateDuration: 2000
    }
    WSvgSpinner {
        svgColorSetName: "label-secondary-text"
    }
    WSvgSpinner {
        svgName: "refresh"
        rotateDuration: 0
    }
}
