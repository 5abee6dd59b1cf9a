// What loading the library costs: from dlopen to a filled band store (the
// store is built by the library's static initialisation), and the memory the
// store takes.

#include <QtCore/QtGlobal>

#include <benchmark/benchmark.h>

#include <dlfcn.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>

namespace {

void silent(QtMsgType, const QMessageLogContext &, const QString &)
{}

void *openLibrary()
{
    void *handle = dlopen(SAISKUKO_LIBRARY_PATH, RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        std::fprintf(stderr, "dlopen: %s\n", dlerror());
        std::exit(1);
    }
    return handle;
}

void LoadAndUnload(benchmark::State &state)
{
    for (auto _ : state) {
        void *handle = openLibrary();
        state.PauseTiming();
        dlclose(handle);
        state.ResumeTiming();
    }
}

// Heap and resident memory added by one load, measured once.
void reportMemory()
{
    long pageKiB = 4;
    auto residentKiB = [&] {
        long pages = 0, resident = 0;
        if (FILE *f = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(f, "%ld %ld", &pages, &resident) != 2)
                resident = 0;
            std::fclose(f);
        }
        return resident * pageKiB;
    };
    const struct mallinfo2 before = mallinfo2();
    const long residentBefore = residentKiB();
    void *handle = openLibrary();
    const struct mallinfo2 after = mallinfo2();
    const long residentAfter = residentKiB();
    std::printf("library load: heap +%zu KiB in use, resident +%ld KiB\n",
                (after.uordblks - before.uordblks) / 1024, residentAfter - residentBefore);
    dlclose(handle);
}

} // namespace

BENCHMARK(LoadAndUnload)->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    qInstallMessageHandler(silent);
    reportMemory();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
