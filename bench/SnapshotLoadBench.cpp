// Moving through a list with snapshots shown: each selection loads a PNG and scales it
// smoothly into the pane. Timed for a 1920x1080 picture, at the pane's size in a window of
// 1600x1000 and in a maximized one.
//
//   snapshot_load_bench [picture.png]
//
// Without a picture two are made: a screen of flat colours as MAME's snapshots are, and
// one of noise, the worst a PNG decoder meets.
#include <cstdio>
#include <ctime>
#include <filesystem>

#include <QCoreApplication>
#include <QImage>
#include <QRandomGenerator>

#include "BenchSupport.h"
#include "ui/info/SnapshotPicture.h"

using namespace coinlight;

namespace {

/// The processor time of the best of `rounds` runs, all threads counted: on a machine
/// shared with other work the clock on the wall measures the others too.
double BestCpuMilliseconds(int rounds, const std::function<void()>& work) {
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
        timespec start{};
        timespec end{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &start);
        work();
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &end);
        best =
            std::min(best, (end.tv_sec - start.tv_sec) * 1e3 + (end.tv_nsec - start.tv_nsec) / 1e6);
    }
    return best;
}

std::filesystem::path MakePicture(const std::filesystem::path& folder, const char* name,
                                  bool noise) {
    QImage image(1920, 1080, QImage::Format_RGB32);
    image.fill(Qt::black);
    QRandomGenerator random(1980);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (noise) {
                line[x] = qRgb(x * 255 / 1920, random.bounded(256), y * 255 / 1080);
            } else if ((x / 120 + y / 90) % 5 == 0) {
                line[x] = qRgb(200, 40 * (x / 240), 90);
            }
        }
    }
    const auto file = folder / name;
    image.save(QString::fromStdString(file.string()));
    return file;
}

void Measure(const std::filesystem::path& file) {
    std::printf("%s: %ju bytes\n", file.c_str(), std::filesystem::file_size(file));
    QImage loaded;
    const auto load = [&] {
        loaded = LoadSnapshotImage(file);
    };
    bench::PrintFigure("load, wall", bench::BestMilliseconds(15, load));
    bench::PrintFigure("load, processor", BestCpuMilliseconds(15, load));
    std::printf("  picture %dx%d\n", loaded.width(), loaded.height());
    for (const QSize room : {QSize(760, 430), QSize(1500, 480)}) {
        QImage scaled;
        const auto both = [&] {
            scaled = ScaledForDisplay(LoadSnapshotImage(file), room);
        };
        char label[80];
        std::snprintf(label, sizeof label, "load and scale into %dx%d, wall", room.width(),
                      room.height());
        bench::PrintFigure(label, bench::BestMilliseconds(15, both));
        std::snprintf(label, sizeof label, "load and scale into %dx%d, processor (limit 30)",
                      room.width(), room.height());
        bench::PrintFigure(label, BestCpuMilliseconds(15, both));
        std::printf("  scaled to %dx%d\n", scaled.width(), scaled.height());
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc > 1) {
        Measure(argv[1]);
        return 0;
    }
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-snapshot-bench";
    std::filesystem::create_directories(folder);
    Measure(MakePicture(folder, "flat.png", false));
    Measure(MakePicture(folder, "noise.png", true));
    std::filesystem::remove_all(folder);
    return 0;
}
