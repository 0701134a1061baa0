// Finding a machine as one types: each key press in the search field narrows the arcade
// list and the other-machine list of a real catalogue (all their rows) through the list
// views, timed from the text change to the updated models. The typing is repeated and each
// key press keeps its best time, the least disturbed. The floor is one search of the two
// catalogue files' bytes for two of the words typed.
//
// usage: search_bench CATALOGUE_OUTPUT_DIR
// The folder is what `coinlight-tool catalogue` writes for MAME's -listxml output.
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "BenchSupport.h"
#include "core/TextFile.h"
#include "lists/ListLoader.h"
#include "ui/MachineListView.h"
#include "ui/MachineSearchField.h"

using namespace coinlight;

namespace {

constexpr int kRounds = 5;

/// What a user types, one key at a time; "\b" is a backspace, "\x1b" empties the field.
const std::vector<std::string> kTyping = {
    "pac man", "\b\b\b\b\b\b\b", "street fighter", "\x1b", "1985 konami", "\x1b",
    "namco",   "\x1b",           "pok\xC3\xA9mon", "\x1b", "zz",          "\x1b"};

LoadedList LoadList(bool arcade, const std::filesystem::path& file) {
    ListLoadJob job;
    job.arcade = arcade;
    job.file = file;
    LoadedList loaded = job.Run({});
    if (!loaded.error.empty()) {
        std::cerr << loaded.error << '\n';
        std::exit(1);
    }
    return loaded;
}

/// The key presses of kTyping as the texts the field holds after each.
std::vector<QString> KeyPresses() {
    std::vector<QString> texts;
    QString text;
    for (const auto& step : kTyping) {
        if (step == "\x1b") {
            text.clear();
            texts.push_back(text);
            continue;
        }
        for (const QChar c : QString::fromStdString(step)) {
            if (c == u'\b') {
                text.chop(1);
            } else {
                text += c;
            }
            texts.push_back(text);
        }
    }
    return texts;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: search_bench CATALOGUE_OUTPUT_DIR\n";
        return 2;
    }
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    const std::filesystem::path output = argv[1];
    const LoadedList arcade = LoadList(true, output / "arcadeinfo.txt");
    const LoadedList other = LoadList(false, output / "otherinfo.txt");

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* field = new MachineSearchField;
    auto* arcadeView = new MachineListView("lvAll", false);
    auto* otherView = new MachineListView("lvOther", true);
    for (QWidget* widget : {static_cast<QWidget*>(field), static_cast<QWidget*>(arcadeView),
                            static_cast<QWidget*>(otherView)}) {
        layout->addWidget(widget);
    }
    arcadeView->SetColumns(ArcadeListColumns(false), {});
    otherView->SetColumns(OtherListColumns(), {});
    window.resize(1100, 720);
    window.show();
    QApplication::processEvents();
    QObject::connect(field, &QLineEdit::textChanged, [&](const QString& text) {
        const SearchQuery query(text.toStdString());
        arcadeView->Narrow(query);
        otherView->Narrow(query);
    });

    const auto presses = KeyPresses();
    std::vector<double> times(presses.size(), 1e300);
    std::vector<int> shown(presses.size());
    for (int round = 0; round < kRounds; ++round) {
        // Fresh rows: the first key press folds their texts again.
        field->blockSignals(true);
        field->clear();
        field->blockSignals(false);
        arcadeView->Model().Reset(arcade.machines, AllRows(*arcade.machines));
        otherView->Model().Reset(other.machines, AllRows(*other.machines));
        for (MachineListView* view : {arcadeView, otherView}) {
            view->Model().Narrow({});
            view->Model().Sort(ColMachine, false);
            view->SelectRow(0);
        }
        QApplication::processEvents();
        for (std::size_t i = 0; i < presses.size(); ++i) {
            QElapsedTimer timer;
            timer.start();
            field->setText(presses[i]);
            times[i] = std::min(times[i], static_cast<double>(timer.nsecsElapsed()) / 1e6);
            shown[i] = arcadeView->Model().rowCount() + otherView->Model().rowCount();
            QApplication::processEvents(); // the views paint between key presses, untimed
        }
    }
    const int rows = arcadeView->Model().TotalRows() + otherView->Model().TotalRows();

    // The floor: the catalogue's bytes searched once for the longest text typed.
    std::string bytes;
    for (const char* file : {"arcadeinfo.txt", "otherinfo.txt"}) {
        bytes += ReadFileBytes(output / file).value_or(std::string());
    }
    std::size_t hits = 0;
    const double floor = bench::BestMilliseconds(5, [&] {
        for (const char* needle : {"street", "fighter"}) {
            for (const char* at = bytes.data();
                 (at = static_cast<const char*>(
                      ::memmem(at, bytes.size() - static_cast<std::size_t>(at - bytes.data()),
                               needle, std::strlen(needle)))) != nullptr;
                 ++at) {
                ++hits;
            }
        }
    });

    std::printf("%d rows (%d arcade, %d other), %zu key presses, best of %d rounds each\n", rows,
                arcadeView->Model().TotalRows(), otherView->Model().TotalRows(), presses.size(),
                kRounds);
    std::vector<double> warm(times.begin() + 1, times.end());
    std::sort(warm.begin(), warm.end());
    bench::PrintFigure("floor: both catalogue files searched for 2 words", floor);
    bench::PrintFigure("first key press (folds the texts once)", times.front());
    bench::PrintFigure("key press, median of the others", warm[warm.size() / 2]);
    bench::PrintFigure("key press, slowest of the others", warm.back());
    std::printf("  per key press:");
    for (std::size_t i = 0; i < presses.size(); ++i) {
        std::printf(" [%s] %.1f ms %d rows;", presses[i].toStdString().c_str(), times[i], shown[i]);
    }
    std::printf("\n  slowest key press %.2f x floor; %s the 16 ms of one frame\n",
                *std::max_element(times.begin(), times.end()) / floor,
                *std::max_element(times.begin(), times.end()) < 16.0 ? "within" : "OVER");
    return hits == 0 ? 1 : 0;
}
