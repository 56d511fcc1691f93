import QtQuick
import Drossbin.App
import Drossbin.Views

/// Everything after the landing screen: the two columns, and in the detail what the state asks for.
ResultsShell {
    id: session

    required property ContentView content

    canScan: !session.content.isScanning
    onScan: session.content.startScan(session.content.optionHeld())
    onEscaped: session.content.goBack()

    sidebar: SidebarView {
        anchors.fill: parent
        categories: session.content.categories
        selectedCategory: session.content.selectedCategory
        meterCaption: session.content.meterCaption
        meterText: session.content.meterText
        isReclaiming: session.content.isReclaiming
        foundShare: session.content.foundShare
        selectedShare: session.content.selectedShare
        onPicked: category => session.content.selectedCategory = category
    }

    ScanProgressView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Scanning
        progress: session.content.scanProgress
        bytesFoundText: session.content.bytesFoundText
        currentTask: session.content.currentTask
    }

    EmptyStateView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Empty
        onScan: session.content.startScan(false)
    }

    OverviewView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Overview
        totalSummary: session.content.totalSummary
        hasSelection: session.content.hasSelection
        deleteLabel: session.content.deleteLabel
        categories: session.content.categories
        onSmartSelect: session.content.smartSelect()
        onDeletionRequested: session.content.requestDeletion()
        onCategoryChosen: category => session.content.selectedCategory = category
    }

    CategoryListView {
        anchors.fill: parent
        visible: session.content.screen === ContentView.Category
        name: session.content.categoryName
        icon: session.content.categoryIcon
        subtitle: session.content.categorySubtitle
        sizeText: session.content.categorySizeText
        categorySummary: session.content.categorySelectionSummary
        searchText: session.content.searchText
        items: session.content.items
        hasSelection: session.content.hasSelection
        hasBrowserData: session.content.hasBrowserData
        overallSummary: session.content.selectionSummary
        onSelectAllPressed: session.content.selectAllInCategory()
        onDeselectAllPressed: session.content.deselectAllInCategory()
        onSearchEdited: text => session.content.searchText = text
        onToggled: row => session.content.items.toggle(row)
        onClearPressed: session.content.clearSelection()
        onDeletePressed: session.content.requestDeletion()
        onDismissed: session.content.goBack()
    }

    SessionSheets {
        content: session.content
    }

    SinglePress {
        window: session.Window.window
    }
}
