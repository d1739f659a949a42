// A controller that is no direct child of the root item, so that it counts for nothing.
import QtQuick
import LumakitTests 1.0

Item {
    width: 100
    height: 100

    Item {
        TestController {
            name: "nested"
        }
    }
}
