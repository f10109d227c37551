// The report of the last search: packets of each network interface, and problems with advice. It can be copied as text;
// the dialog stays open then.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    required property SearchReports reports  // provides the report as texts; not changed
    readonly property int labelWidth: Theme.imageLabelWidth

    wantedWidth: Theme.detailWidth
    objectName: "searchReportDialog"
    okText: qsTr("复制文本")
    cancelText: qsTr("关闭")
    title: qsTr("搜索报告")
    onAboutToShow: view.contentY = 0
    onAccepted: {
        clipboard.copy(reports.text);
        inform(qsTr("已复制到剪贴板"), OVToast.Success);
    }
    onOpened: view.forceActiveFocus()

    OVClipboard {
        id: clipboard
    }

    Column {
        width: parent.width
        spacing: Theme.pageMargin

        OVParagraph {
            width: parent.width
            font: Theme.leadFont
            objectName: "reportSummary"
            text: root.reports.summary
        }
        Flickable {
            id: view
            width: parent.width
            height: Math.min(contentHeight, Theme.detailHeight)
            activeFocusOnTab: interactive
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            contentHeight: blocks.height
            interactive: contentHeight > height

            T.ScrollBar.vertical: OVScrollBar {
                id: bar
            }

            Keys.onDownPressed: bar.increase()
            Keys.onUpPressed: bar.decrease()

            Column {
                id: blocks
                width: parent.width - Theme.pageMargin
                spacing: Theme.pageMargin

                // qmllint disable unqualified
                Repeater {
                    model: root.reports.blocks

                    OVSection {
                        id: block

                        required property int index
                        required property var modelData

                        width: blocks.width
                        objectName: "reportBlock" + index
                        title: modelData.title

                        Column {
                            width: block.width
                            spacing: Theme.half
                            visible: block.modelData.lines.length > 0

                            Repeater {
                                model: block.modelData.lines

                                Item {
                                    id: line

                                    required property var modelData

                                    width: block.width
                                    height: Math.max(label.height, value.height)

                                    OVParagraph {
                                        id: label
                                        anchors.baseline: value.baseline
                                        width: root.labelWidth
                                        color: Theme.colours.sub
                                        text: line.modelData.label
                                    }
                                    OVParagraph {
                                        id: value
                                        x: root.labelWidth + Theme.unit
                                        width: parent.width - x
                                        font: Theme.figureFont
                                        text: line.modelData.value
                                    }
                                }
                            }
                        }
                        Repeater {
                            model: block.modelData.obstacles

                            Item {
                                id: obstacle

                                required property var modelData

                                width: block.width
                                height: advice.y + advice.height

                                OVNotice {
                                    id: notice
                                    width: parent.width
                                    iconColor: Theme.colours.warn
                                    iconName: "alert"
                                    text: obstacle.modelData.text
                                }
                                OVParagraph {
                                    id: advice
                                    x: Theme.iconSize + notice.spacing
                                    y: notice.height
                                    width: parent.width - x
                                    color: Theme.colours.sub
                                    text: obstacle.modelData.advice
                                }
                            }
                        }
                    }
                }
                // qmllint enable unqualified
            }
        }
    }
}
