// Not allowed: a view has one controller at most.
import QtQuick
import LumakitTests 1.0

Item {
    TestController {
        name: "first"
    }

    TestController {
        name: "second"
    }
}
