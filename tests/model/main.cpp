#include "Walk.h"

#include <QApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const long stepsOfARun = 2000;
const int mostKinds = 64;

struct Counts {
    long steps;
    long kinds[mostKinds];
};

struct Options {
    unsigned long long seed;
    long steps;
    bool counts;
};

bool Understand(int argc, char **argv, Options *options)
{
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--counts") == 0) {
            options->counts = true;
        } else if (std::strcmp(argv[i], "--seed") == 0 && hasValue) {
            options->seed = std::strtoull(argv[++i], nullptr, 10);
        } else if (std::strcmp(argv[i], "--steps") == 0 && hasValue) {
            options->steps = std::strtol(argv[++i], nullptr, 10);
        } else {
            return false;
        }
    }
    return options->steps > 0;
}

void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

bool RunWalk(unsigned long long seed, long steps, Counts *counts)
{
    qInstallMessageHandler(Discard);
    int argumentCount = 1;
    char name[] = "tst_model";
    char *arguments[] = {name, nullptr};
    const QApplication application(argumentCount, arguments);
    Walk walk(seed);
    bool agrees = true;
    for (long i = 0; i < steps && agrees; ++i) {
        agrees = walk.Step();
        ++counts->steps;
        ++counts->kinds[walk.LastKind()];
    }
    agrees = agrees && walk.End();
    if (!agrees) {
        std::fprintf(stderr, "%s\n", walk.Report().toUtf8().constData());
    }
    return agrees;
}

/** In a process of its own: the plug-in's singletons live once, and a crash ends one run only. */
bool RunWalkApart(unsigned long long seed, long steps, Counts *counts)
{
    const pid_t child = fork();
    if (child == 0) {
        std::exit(RunWalk(seed, steps, counts) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const bool agrees = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (!agrees) {
        std::fprintf(stderr, "%s; again with: tst_model --seed %llu --steps %ld\n",
                     WIFSIGNALED(status) ? "crashed" : "differs", seed, steps);
    }
    return agrees;
}

} // namespace

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    Options options = {1, stepsOfARun, false};
    if (!Understand(argc, argv, &options)) {
        std::fprintf(stderr, "usage: %s [--seed N] [--steps N] [--counts]\n", argv[0]);
        return 2;
    }
    void *shared = mmap(nullptr, sizeof(Counts), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Counts *counts = static_cast<Counts *>(shared);
    std::memset(shared, 0, sizeof(Counts));

    std::printf("seed %llu, %ld steps in runs of %ld\n", options.seed, options.steps, stepsOfARun);
    std::fflush(stdout);
    const std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
    long runs = 0;
    long failed = 0;
    for (long left = options.steps; left > 0; left -= stepsOfARun, ++runs) {
        if (!RunWalkApart(options.seed + static_cast<unsigned long long>(runs),
                          left < stepsOfARun ? left : stepsOfARun, counts)) {
            ++failed;
        }
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    if (options.counts) {
        for (int kind = 0; kind < Walk::KindCount(); ++kind) {
            std::printf("%9ld  %s\n", counts->kinds[kind], Walk::KindName(kind));
        }
    }
    std::printf("%ld steps in %ld runs, %.0f seconds: %ld runs differ from the model\n", counts->steps, runs,
                seconds, failed);
    return failed == 0 ? 0 : 1;
}
