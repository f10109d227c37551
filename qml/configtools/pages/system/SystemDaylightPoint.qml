// Start or end of daylight saving: a day of the month, or a weekday of a week.
import QtQuick
import configtools

Flow {
    id: root

    required property SystemLists lists
    required property var deviceFactory  // provides the days of a month
    required property bool byWeek
    required property string name  // prefix of its keys and object names: "start" or "end"
    property alias month: monthBox.currentIndex  // from 0
    property alias week: weekBox.currentIndex
    property alias time: timeField.text
    readonly property alias acceptable: timeField.acceptable

    /// Its values in the command's data.
    function values() {
        return {
            [name + "Month"]: monthBox.currentIndex + 1,
            [name + "Day"]: dayBox.currentIndex,
            [name + "Week"]: weekBox.currentIndex,
            [name + "WeekDay"]: weekdayBox.currentIndex,
            [name + "Time"]: timeField.text
        };
    }

    width: parent?.width ?? 0
    spacing: Theme.unit

    OVComboBox {
        id: monthBox
        width: Theme.shortChoiceWidth
        accessibleName: qsTr("月")
        model: root.lists.months
        objectName: root.name + "MonthBox"
    }
    OVComboBox {
        id: dayBox
        width: Theme.shortChoiceWidth
        accessibleName: qsTr("日")
        model: root.deviceFactory.getDays(monthBox.currentIndex + 1)
        objectName: root.name + "DayBox"
        visible: !root.byWeek
        onModelChanged: if (count > 0) currentIndex = Math.min(kept, count - 1)

        property int kept: 0  // kept across a shorter month
        onActivated: index => kept = index
    }
    OVComboBox {
        id: weekBox
        width: Theme.shortChoiceWidth
        accessibleName: qsTr("周")
        model: root.lists.weeks
        objectName: root.name + "WeekBox"
        visible: root.byWeek
    }
    OVComboBox {
        id: weekdayBox
        width: Theme.shortChoiceWidth
        accessibleName: qsTr("星期")
        model: root.lists.weekdays
        objectName: root.name + "WeekDayBox"
        visible: root.byWeek
    }
    OVDateTimeField {
        id: timeField
        width: Theme.hourFieldWidth
        accessibleName: qsTr("时间")
        format: "hh:mm"
        objectName: root.name + "TimeField"
    }
}
