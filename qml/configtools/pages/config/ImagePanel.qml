// The tab with the image settings of a channel, in three subjects, with a live view. Each change is written to the
// device immediately.
import QtQuick
import QtQuick.Templates as T
import configtools

Item {
    id: root

    required property ImageWork work  // reads and writes the settings
    property int subject: 0  // index in `subjects`: 0 picture, 1 exposure and white balance, 2 day, night and lamps
    readonly property CameraForm form: work.form  // has the values as last read

    /// Keys of the groups of each subject.
    readonly property var subjects: [
        ["picture", "sharpness", "mirror", "stable", "inDefog"],
        ["exposure", "backMode", "whiteBalance"],
        ["dayNight", "lightControl", "lightControlEx"]
    ]
    /// The camera has no setting of this subject.
    readonly property bool empty: !subjects[subject].some(key => form.groups[key].support || form.groups[key].unread)

    // Scrolls to the item with the keyboard focus.
    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        let above = focused;
        while (above && above !== groups)
            above = above.parent;
        if (!above)
            return;
        const top = focused.mapToItem(groups, 0, 0).y;
        const bottom = top + focused.height + Theme.pageMargin;
        if (top < view.contentY || bottom > view.contentY + view.height) {
            const middle = (top + bottom - view.height) / 2;
            view.contentY = Math.max(0, Math.min(view.contentHeight - view.height, middle));
        }
    }

    OVSegmentedChoice {
        id: choice
        x: Theme.pageMargin + Theme.unit
        y: Theme.controlGap
        currentIndex: root.subject
        options: [
            {text: qsTr("画面"), objectName: "imageSubject0"},
            {text: qsTr("曝光与白平衡"), objectName: "imageSubject1"},
            {text: qsTr("日夜与补光"), objectName: "imageSubject2"}
        ]
        onActivated: index => {
            root.subject = index;
            view.contentY = 0;
        }
    }
    Flickable {
        id: view
        y: choice.y + choice.height + Theme.controlGap
        width: side.x - Theme.pageMargin - Theme.line
        height: parent.height - y
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: groups.height + Theme.pageMargin
        interactive: contentHeight > height
        visible: !root.empty

        T.ScrollBar.vertical: OVScrollBar {}

        Item {
            id: groups
            x: choice.x
            width: Math.min(Theme.imageWidth, view.width - x - Theme.pageMargin - Theme.unit)
            height: children[root.subject].height

            ImagePictureGroups {
                width: parent.width
                work: root.work
                visible: root.subject === 0
            }
            ImageExposureGroups {
                width: parent.width
                work: root.work
                visible: root.subject === 1
            }
            ImageLightGroups {
                width: parent.width
                work: root.work
                visible: root.subject === 2
            }
        }
    }
    OVEmptyState {
        anchors.fill: view
        hint: qsTr("摄像机没有告知这方面的设置。")
        iconName: "nothing"
        objectName: "imageEmptyState"
        title: qsTr("没有可调的项目")
        visible: root.empty
    }
    Rectangle {
        x: side.x - Theme.pageMargin
        y: side.y - Theme.pageMargin
        width: Theme.line
        height: parent.height - y
        color: Theme.colours.line
    }
    ImageSide {
        id: side
        x: parent.width - width - Theme.pageMargin
        y: Theme.pageMargin + (choice.x + choice.width > x - 2 * Theme.pageMargin ? view.y : 0)  // below a wide choice
        width: Math.min(Theme.imageSideWidth, Math.round(parent.width * Theme.imageSideShare))
        height: parent.height - y - Theme.pageMargin
        work: root.work
    }
}
