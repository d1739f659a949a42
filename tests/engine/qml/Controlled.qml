// A view with a controller.
import QtQuick
import LumakitTests 1.0

Rectangle {
    width: 320
    height: 180
    color: "steelblue"

    TestController {
        name: "controlled"
    }
}
