// Texts of the choices of the system page. The index of a text is its number in the data of a command, except for
// months, which count from 1 there.
import QtQuick

QtObject {
    readonly property var months: [
        qsTr("1月"), qsTr("2月"), qsTr("3月"), qsTr("4月"), qsTr("5月"), qsTr("6月"),
        qsTr("7月"), qsTr("8月"), qsTr("9月"), qsTr("10月"), qsTr("11月"), qsTr("12月")
    ]
    readonly property var weeks: [
        qsTr("第一周"), qsTr("第二周"), qsTr("第三周"), qsTr("第四周"), qsTr("最后一周")
    ]
    readonly property var weekdays: [
        qsTr("周日"), qsTr("周一"), qsTr("周二"), qsTr("周三"), qsTr("周四"), qsTr("周五"), qsTr("周六")
    ]
    readonly property var maintenanceDays: [
        qsTr("星期日"), qsTr("星期一"), qsTr("星期二"), qsTr("星期三"), qsTr("星期四"), qsTr("星期五"),
        qsTr("星期六"), qsTr("每天")
    ]
}
