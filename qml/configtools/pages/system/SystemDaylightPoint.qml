// Fields for the start or end of daylight saving: either month and day, or month, week and weekday, and a time.
import QtQuick
import configtools

Flow {
    id: root

    required property SystemLists lists  // texts of the choices
    required property var deviceFactory  // a CDeviceFactory; provides the days of a month
    required property bool byWeek  // week and weekday are entered instead of the day
    required property string name  // prefix of the keys and object names: "start" or "end"
    property alias month: monthBox.currentIndex  // from 0
    property alias week: weekBox.currentIndex  // index in SystemLists.weeks
    property alias time: timeField.text  // "hh:mm"
    readonly property alias acceptable: timeField.acceptable  // the time is valid

    /// The values as part of the data of the command "dstConfig". The keys begin with `name`: "Month" (1 to 12), "Day"
    /// (index in the days of the month, from 0), "Week" and "WeekDay" (indexes in SystemLists) and "Time" ("hh:mm").
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
