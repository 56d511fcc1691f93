import QtQuick
import Drossbin.App

/// The three sheets around a deletion, each up while its part of the state says so, and the one
/// dim that stays below them while one follows another.
Item {
    id: sheets

    required property ContentView content
    readonly property bool isAnyShown: sheets.content.shown.showConfirmation || sheets.content.shown.isDeleting || sheets.content.shown.showDeletionComplete

    Rectangle {
        parent: sheets.Window.contentItem
        anchors.fill: parent
        z: 1
        color: Theme.dim
        opacity: sheets.isAnyShown ? 1 : 0
        visible: opacity > 0

        Behavior on opacity {
            EaseOutMotion {
                duration: Theme.dimmed
            }
        }
    }

    Sheet {
        id: confirmation

        shown: sheets.content.shown.showConfirmation
        name: sheets.content.shown.confirmationTitle
        onEscaped: sheets.content.cancelDeletion()

        DeletionConfirmView {
            focus: true
            tallest: confirmation.tallest
            title: sheets.content.shown.confirmationTitle
            selectedSizeText: sheets.content.shown.selectedSizeText
            hasBrowserItems: sheets.content.shown.hasBrowserData
            selectedItems: sheets.content.selectedItems
            onConfirmed: sheets.content.confirmDeletion()
            onCancelled: sheets.content.cancelDeletion()
        }
    }

    // Nothing but the deletion's end closes this one.
    Sheet {
        shown: sheets.content.shown.isDeleting
        name: "Deleting files..."

        DeletionProgressView {
            focus: true
            progress: sheets.content.shown.deleteProgress
            percentText: sheets.content.shown.deletePercentText
        }
    }

    Sheet {
        id: completion

        shown: sheets.content.shown.showDeletionComplete
        name: "Cleanup Complete!"
        description: `You freed ${sheets.content.shown.freedSpaceText}\n${sheets.content.deletionLog.failure}`.trim()
        onEscaped: sheets.content.dismissCompletion()

        DeletionCompleteView {
            focus: true
            tallest: completion.tallest
            freedSpaceText: sheets.content.shown.freedSpaceText
            log: sheets.content.deletionLog
            firstFailure: sheets.content.deletionLog.firstFailure
            onDismissed: sheets.content.dismissCompletion()
        }
    }
}
