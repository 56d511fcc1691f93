import QtQuick
import Drossbin.App

/// The three sheets around a deletion, each up while its part of the state says so, and the one
/// dim that stays below them while one follows another.
Item {
    id: sheets

    required property ContentView content
    readonly property bool isAnyShown: sheets.content.showConfirmation || sheets.content.isDeleting || sheets.content.showDeletionComplete

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

        shown: sheets.content.showConfirmation
        name: sheets.content.confirmationTitle
        onEscaped: sheets.content.cancelDeletion()

        DeletionConfirmView {
            focus: true
            tallest: confirmation.tallest
            title: sheets.content.confirmationTitle
            selectedSizeText: sheets.content.selectedSizeText
            hasBrowserItems: sheets.content.hasBrowserData
            selectedItems: sheets.content.selectedItems
            onConfirmed: sheets.content.confirmDeletion()
            onCancelled: sheets.content.cancelDeletion()
        }
    }

    // Nothing but the deletion's end closes this one.
    Sheet {
        shown: sheets.content.isDeleting
        name: "Deleting files..."

        DeletionProgressView {
            focus: true
            progress: sheets.content.deleteProgress
            percentText: sheets.content.deletePercentText
        }
    }

    Sheet {
        id: completion

        shown: sheets.content.showDeletionComplete
        name: "Cleanup Complete!"
        description: `You freed ${sheets.content.freedSpaceText}\n${sheets.content.deletionLog.failure}`.trim()
        onEscaped: sheets.content.dismissCompletion()

        DeletionCompleteView {
            focus: true
            tallest: completion.tallest
            freedSpaceText: sheets.content.freedSpaceText
            log: sheets.content.deletionLog
            firstFailure: sheets.content.deletionLog.firstFailure
            onDismissed: sheets.content.dismissCompletion()
        }
    }
}
