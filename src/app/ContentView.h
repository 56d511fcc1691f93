#pragma once

#include "app/CategoryListModel.h"
#include "app/DesktopSettings.h"
#include "app/ItemListModel.h"
#include "app/ItemSurvey.h"
#include "app/LogLinesModel.h"
#include "app/Services.h"
#include "app/ShownValues.h"

#include <QCoroTask>

namespace drossbin {

/// The root of the screens: owns the session's state, decides which screen is shown, and runs the
/// scan and the deletion. However many changes the state announces, the screens read it once, on
/// the next turn of the event loop. It must outlive the runs that it started.
class ContentView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(drossbin::ShownValues shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(Screen screen READ screen NOTIFY shownChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY shownChanged)
    Q_PROPERTY(
        int selectedCategory READ selectedCategory WRITE setSelectedCategory NOTIFY shownChanged)
    Q_PROPERTY(drossbin::DesktopSettings* desktop READ desktop CONSTANT)
    Q_PROPERTY(drossbin::CategoryListModel* categories READ categories CONSTANT)
    Q_PROPERTY(drossbin::ItemListModel* items READ items CONSTANT)
    Q_PROPERTY(drossbin::ItemListModel* selectedItems READ selectedItems CONSTANT)
    Q_PROPERTY(drossbin::LogLinesModel* deletionLog READ deletionLog CONSTANT)

  public:
    enum Screen { Landing, Scanning, Empty, Overview, Category };
    Q_ENUM(Screen)

    explicit ContentView(QObject* parent = nullptr);
    explicit ContentView(Services services, QObject* parent = nullptr);

    [[nodiscard]] const ShownValues& shown() const { return m_shown; }
    [[nodiscard]] Screen screen() const;
    [[nodiscard]] QString searchText() const;
    void setSearchText(const QString& text);
    /// The category's place in the declared order; -1 for none.
    [[nodiscard]] int selectedCategory() const;
    void setSelectedCategory(int place);

    DesktopSettings* desktop() { return &m_desktop; }
    CategoryListModel* categories() { return &m_categories; }
    /// The rows of the category shown.
    ItemListModel* items() { return &m_items; }
    /// What the confirmation asks about, followed only while it is up.
    ItemListModel* selectedItems() { return &m_selectedItems; }
    LogLinesModel* deletionLog() { return &m_deletionLog; }
    ScanResult& scanResult() { return m_scanResult; }

    /// From a category's list to the overview; what else is shown stays.
    Q_INVOKABLE void goBack();

    Q_INVOKABLE void startScan(bool demo);
    Q_INVOKABLE void requestDeletion();
    Q_INVOKABLE void cancelDeletion();
    Q_INVOKABLE void confirmDeletion();
    Q_INVOKABLE void dismissCompletion();

    Q_INVOKABLE void smartSelect();
    Q_INVOKABLE void selectAllInCategory();
    Q_INVOKABLE void deselectAllInCategory();
    Q_INVOKABLE void clearSelection();

    /// Whether the window may close at once; if not, `closeNow` follows when the deletion ends.
    Q_INVOKABLE bool requestClose();

    /// Whether Option (Alt) is held at this moment.
    [[nodiscard]] Q_INVOKABLE static bool optionHeld();

    /// Begins to follow the desktop's settings and reads the locale's data, both in the background.
    /// For the moment after the first frame: the start waits for neither.
    Q_INVOKABLE void prepare();

  signals:
    /// Once a turn, whatever changed. A screen binds each value to a property of its own, which
    /// stays silent where the value is the same.
    void shownChanged();
    void closeNow();

  private:
    /// Whether a run or a sheet has the screen, so that no other may begin.
    [[nodiscard]] bool isBusy() const;

    QCoro::Task<> performScan(bool demo);
    QCoro::Task<std::vector<DiskItem>> scanDisk();
    QCoro::Task<std::vector<DiskItem>> scanDemo();
    QCoro::Task<> performDeletion();
    QCoro::Task<> measureDisk();
    void chooseCategory();
    /// What is selected, in list order, hidden by the filter or not.
    [[nodiscard]] std::vector<DiskItem> itemsToDelete() const;

    void noteChange(ScanResult::Field field);
    void queueRefresh();
    void refresh();

    Services m_services;
    ScanResult m_scanResult;
    std::optional<DiskCategory> m_selectedCategory;
    /// Until the disk has been asked, and where it cannot be, the meter's scale is an assumption.
    static constexpr std::int64_t assumedDiskSpace = 500'000'000'000;
    std::int64_t m_diskSpace = assumedDiskSpace;
    bool m_closesAfterDeletion = false;

    ItemSurvey m_survey;
    bool m_isSurveyStale = false;
    bool m_isRefreshQueued = false;
    ShownValues m_shown;
    CategoryListModel m_categories;
    ItemListModel m_items;
    ItemListModel m_selectedItems;
    LogLinesModel m_deletionLog;
    DesktopSettings m_desktop;
    ChangePublisher<ScanResult::Field>::Subscription m_subscription;
};

} // namespace drossbin
