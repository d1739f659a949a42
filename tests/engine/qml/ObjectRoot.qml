// A root object that is no item, with a controller as its child.
import QtQml
import LumakitTests 1.0

QtObject {
    property TestController controller: TestController {
        name: "child of an object"
    }
}
