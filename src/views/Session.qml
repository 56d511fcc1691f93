import QtQuick
import Drossbin.App
import Drossbin.Views

/// Everything after the landing screen: the two columns, and in the detail what the state asks for.
ResultsShell {
    id: session

    required property ContentView content

    canScan: !session.content.shown.isScanning
    onScan: session.content.startScan(session.content.optionHeld())
    onEscaped: session.content.goBack()

    sidebar: SidebarView {
        anchors.fill: parent
        categories: session.content.categories
        selectedCategory: session.content.selectedCategory
        canGoBack: session.content.screen === ContentView.Category
        meterCaption: session.content.shown.meterCaption
        meterText: session.content.shown.meterText
        isReclaiming: session.content.shown.isReclaiming
        foundShare: session.content.shown.foundShare
        selectedShare: session.content.shown.selectedShare
        onPicked: category => session.content.selectedCategory = category
    }

    ScanProgressView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Scanning
        progress: session.content.shown.scanProgress
        bytesFoundText: session.content.shown.bytesFoundText
        currentTask: session.content.shown.currentTask
    }

    EmptyStateView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Empty
        onScan: session.content.startScan(false)
    }

    OverviewView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Overview
        totalSummary: session.content.shown.totalSummary
        hasSelection: session.content.shown.hasSelection
        deleteLabel: session.content.shown.deleteLabel
        categories: session.content.categories
        onSmartSelect: session.content.smartSelect()
        onDeletionRequested: session.content.requestDeletion()
        onCategoryChosen: category => session.content.selectedCategory = category
    }

    CategoryListView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Category
        name: session.content.shown.categoryName
        icon: session.content.shown.categoryIcon
        subtitle: session.content.shown.categorySubtitle
        sizeText: session.content.shown.categorySizeText
        categorySummary: session.content.shown.categorySelectionSummary
        searchText: session.content.searchText
        items: session.content.items
        hasSelection: session.content.shown.hasSelection
        hasBrowserData: session.content.shown.hasBrowserData
        overallSummary: session.content.shown.selectionSummary
        onSelectAllPressed: session.content.selectAllInCategory()
        onDeselectAllPressed: session.content.deselectAllInCategory()
        onSearchEdited: text => session.content.searchText = text
        onToggled: row => session.content.items.toggle(row)
        onClearPressed: session.content.clearSelection()
        onDeletePressed: session.content.requestDeletion()
        onDismissed: session.content.goBack()
    }

    DeletionSheets {
        content: session.content
    }

    SinglePress {
        window: session.Window.window
    }
}
