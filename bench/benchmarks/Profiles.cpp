#include "bench/benchmarks/Registrations.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"

#include <benchmark/benchmark.h>

namespace bench {

namespace {

BaseProfile* newImageProfile()
{
    return new ImageProfile;
}

/// A manager with this many profiles in a file of its own, all owned by this object.
class Profiles
{
public:
    explicit Profiles(int count)
        : m_manager(QStringLiteral("BenchmarkProfiles.ini"), newImageProfile, false)
    {
        while (m_manager.profiles().size() < count) {
            m_manager.addProfile(m_manager.createProfile());
        }
        m_manager.saveProfiles();
    }

    ~Profiles() { qDeleteAll(m_manager.profiles()); }
    Profiles(const Profiles&) = delete;
    Profiles& operator=(const Profiles&) = delete;

    ProfileManager& manager() { return m_manager; }

private:
    ProfileManager m_manager;
};

void saveProfiles(benchmark::State& state)
{
    Profiles profiles(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        profiles.manager().saveProfiles();
    }
}

void loadProfiles(benchmark::State& state)
{
    Profiles profiles(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        const QList<BaseProfile*> replaced = profiles.manager().profiles();
        profiles.manager().loadProfilesFromFile();
        state.PauseTiming();
        if (profiles.manager().profiles().size() != state.range(0)) {
            state.SkipWithError("not all profiles came back");
        }
        qDeleteAll(replaced);
        state.ResumeTiming();
    }
}

void generateFileName(benchmark::State& state)
{
    const FileNameProfile profile;
    const QString video = QStringLiteral("A video with a long name");
    int counter = 0;
    for ([[maybe_unused]] auto _ : state) {
        QString name = profile.generateFileName(video, ++counter);
        benchmark::DoNotOptimize(name.constData());
    }
}

} // namespace

void registerProfiles()
{
    constexpr int many = 1000;
    benchmark::RegisterBenchmark("LoadProfiles", loadProfiles)
        ->Arg(many)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("SaveProfiles", saveProfiles)
        ->Arg(many)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("GenerateFileName", generateFileName)
        ->Unit(benchmark::kMicrosecond);
}

} // namespace bench
