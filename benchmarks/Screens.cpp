#include "LoopWatch.h"
#include "Window.h"
#include "app/EventLoop.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>
#include <vector>

// How long one click keeps the window from answering the next, in a session of many items:
//   screens ITEMS RUNS [INTERACTION]
// A line for each kind of click, or for the one named: its name, then for each run the milliseconds
// of the longest stretch from the click until all that came of it is drawn and has come to rest.

namespace {

using namespace drossbin;

constexpr int restTime = 400;    ///< between what prepares a click and the click
constexpr int settleTime = 1000; ///< for the longest animation

struct Interaction {
    const char* name;
    std::function<void(const Window&)> prepare;
    std::function<void(const Window&)> input;
};

void showCategory(const Window& window, DiskCategory category) {
    window.content().cancelDeletion();
    window.content().setSearchText({});
    window.content().setSelectedCategory(static_cast<int>(category));
}

void showFirstCategory(const Window& window) {
    showCategory(window, DiskCategory::programCaches);
}

void showNothingSelected(const Window& window) {
    showFirstCategory(window);
    window.content().clearSelection();
}

void showEverythingSelected(const Window& window) {
    showFirstCategory(window);
    window.content().smartSelect();
}

void showOverview(const Window& window) {
    showNothingSelected(window);
    window.content().setSelectedCategory(-1);
}

void typeIntoFilter(const Window& window) {
    window.press(Qt::Key_F, Qt::ControlModifier, {});
    window.press(Qt::Key_E, Qt::NoModifier, "e");
}

const std::vector<Interaction>& interactions() {
    static const std::vector<Interaction> list{
        {"toggle a check box", showFirstCategory,
         [](const Window& window) { window.clickFirstCheckBox(); }},
        {"Select All Safe", showNothingSelected,
         [](const Window& window) { window.clickButton("Select All Safe"); }},
        {"Smart Select", showOverview,
         [](const Window& window) { window.clickButton("Smart Select"); }},
        {"type a letter", showFirstCategory, typeIntoFilter},
        {"change the category", showFirstCategory,
         [](const Window& window) { window.clickCategory("App Data"); }},
        {"open the confirmation", showEverythingSelected,
         [](const Window& window) { window.clickButton("Delete Selected"); }},
    };
    return list;
}

void measure(const Interaction& interaction, const Window& window, LoopWatch& watch, int runs) {
    std::printf("%s", interaction.name);
    for (int run = 0; run < runs; ++run) {
        interaction.prepare(window);
        watch.longestStretch(restTime);
        interaction.input(window);
        std::printf("\t%.2f", watch.longestStretch(settleTime));
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::fputs("usage: screens ITEMS RUNS [INTERACTION]\n", stderr);
        return 2;
    }
    qputenv("QT_NO_GLIB", "1"); // whose event loop rests in another function
    const QGuiApplication application(argc, argv);
    connectMainThreadToEventLoop();
    Window window;
    window.fill(std::strtoull(argv[1], nullptr, 10));
    LoopWatch watch;
    watch.longestStretch(settleTime);
    window.activate();
    for (const Interaction& interaction : interactions()) {
        if (argc == 3 || interaction.name == std::string_view(argv[3])) {
            measure(interaction, window, watch, std::atoi(argv[2]));
        }
    }
    std::_Exit(EXIT_SUCCESS); // the end of the session is of no interest
}
