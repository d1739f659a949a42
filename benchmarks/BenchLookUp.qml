// Loops for the benchmark of colour look-ups. Each call's result is stored, as a binding would.
import QtQuick
import Corvane 1.0

QtObject {
    property string name: "button-primary-background"
    property color sample
    property bool flag: true

    function lookUp(times: int) {
        for (let i = 0; i < times; ++i)
            sample = App.getColorSet(name).normal;
    }

    function callNothing(times: int) {
        for (let i = 0; i < times; ++i)
            flag = App.animationsDisabled();
    }
}
