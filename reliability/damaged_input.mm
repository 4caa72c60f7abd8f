// The program `damaged_input`: gives damaged files, messages, titles and selections to the library in its
// host applications, each subject in processes of its own, and fails when one of them crashes, hangs, is
// reported by a sanitizer or does what it must not.
#include "damage.h"

#include "device/exceptions.h"
#include "photolibrary/library.h"
#include "photolibrary/samples.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <deque>
#include <fstream>
#include <map>
#include <set>
#include <thread>

namespace reliability {
namespace {

constexpr std::size_t inputsInProcess = 500;
constexpr unsigned secondsForInput = 20;
constexpr std::size_t tooManyFaults = 20;

using Options = std::map<std::string, std::string>;

// Of each subject the inputs are numbered; a number and the seed make the same input again.
Options parse(int count, char** arguments) {
    Options options{{"--inputs", "100000"}, {"--subject", ""}, {"--first", "0"}};
    options["--seed"] = std::to_string(std::random_device()());
    for (int i = 1; i + 1 < count; i += 2)
        options[arguments[i]] = arguments[i + 1];
    if (count % 2 == 0 || options.size() != 6 || !options.contains("--library") ||
        !options.contains("--device-files"))
        throw std::invalid_argument("usage: damaged_input --library FILE --device-files FOLDER [--inputs N] "
                                    "[--seed N] [--subject NAME [--first N]]");
    return options;
}

struct Batch {
    const Subject* subject;
    std::size_t first, end;
    std::size_t* current; // shared with the process that works on it
    std::filesystem::path folder;
};

std::deque<Batch> batchesOf(const Options& options) {
    std::deque<Batch> batches;
    const std::string& wanted = options.at("--subject");
    const std::size_t inputs = std::stoul(options.at("--inputs")), first = std::stoul(options.at("--first"));
    for (const Subject& subject : subjects) {
        if (!wanted.empty() && wanted != subject.name) continue;
        const std::size_t end = first + (wanted.empty() ? inputs * subject.share / 1000 : inputs);
        for (std::size_t begin = first; begin < end; begin += inputsInProcess)
            batches.push_back({&subject, begin, std::min(begin + inputsInProcess, end), nullptr, {}});
    }
    if (batches.empty()) throw std::invalid_argument("there is no subject \"" + wanted + "\"");
    return batches;
}

// Files of the device that belong neither to its state folder nor to where a subject writes its input.
std::set<std::string> otherFiles(const simulator::Device& device) {
    std::set<std::string> files;
    for (const auto& each : std::filesystem::recursive_directory_iterator(device.root()))
        if (each.is_regular_file() && each.path().native().find("/rollkeeper/") == std::string::npos &&
            each.path().filename() != "com.nrv.rollkeeperprefs.plist")
            files.insert(each.path());
    return files;
}

Damage damageOf(const Options& options, std::size_t number) {
    std::seed_seq mixing{std::stoull(options.at("--seed")), static_cast<unsigned long long>(number)};
    std::uint32_t mixed[2];
    mixing.generate(std::begin(mixed), std::end(mixed));
    return Damage(std::uint64_t(mixed[0]) << 32 | mixed[1]);
}

// In a process of its own.
void work(const Batch& batch, const Options& options) {
    using std::filesystem::copy_options;
    const simulator::Device device = simulator::Device::create(batch.folder);
    addSmallSample(*simulator::PhotoLibrary::open(device));
    std::filesystem::copy(options.at("--device-files"), device.root(),
                          copy_options::recursive | copy_options::overwrite_existing);
    std::filesystem::create_directories(device.onLinux("/var/mobile/Library/rollkeeper"));
    alarm(secondsForInput);
    const auto feed = batch.subject->start(device, std::filesystem::absolute(options.at("--library")));
    const std::set<std::string> before = otherFiles(device);
    for (*batch.current = batch.first; *batch.current < batch.end; ++*batch.current)
        @autoreleasepool {
            alarm(secondsForInput);
            Damage damage = damageOf(options, *batch.current);
            feed(damage);
        }
    expect(batch.subject->writesAnywhere || otherFiles(device) == before,
           "a file outside the state folder was written");
}

pid_t begin(Batch& batch, const Options& options) {
    std::string folder = (std::filesystem::temp_directory_path() / "damaged-XXXXXX").string();
    void* shared =
        mmap(nullptr, sizeof(std::size_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (mkdtemp(folder.data()) == nullptr || shared == MAP_FAILED)
        throw std::runtime_error("no folder for a device");
    batch.folder = folder;
    batch.current = static_cast<std::size_t*>(shared);
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process for a batch");
    if (child == 0) {
        // Foundation tells of much that is damaged; it is shown where there is a fault.
        std::freopen((batch.folder / "said").c_str(), "w", stderr);
        const auto raised = simulator::anyExceptionOf([&] {
            @autoreleasepool {
                work(batch, options);
            }
        });
        expect(!raised, raised.value_or(""));
        _exit(0);
    }
    return child;
}

std::string describe(int status) {
    if (WIFEXITED(status)) return "exit code " + std::to_string(WEXITSTATUS(status));
    if (WTERMSIG(status) == SIGALRM) return "not done after " + std::to_string(secondsForInput) + " s";
    return std::string("ended by signal: ") + strsignal(WTERMSIG(status));
}

std::string lastWords(const std::filesystem::path& file) {
    constexpr std::size_t enough = 4000;
    std::ifstream stream(file);
    const std::string said{std::istreambuf_iterator<char>(stream), {}};
    return said.substr(said.size() - std::min(said.size(), enough));
}

// As many batches at a time as there are processors. What follows a fault goes on in another process.
std::size_t run(const Options& options) {
    std::deque<Batch> waiting = batchesOf(options);
    std::map<pid_t, Batch> running;
    std::size_t inputs = 0, faults = 0;
    while (!waiting.empty() || !running.empty()) {
        while (!waiting.empty() && running.size() < std::thread::hardware_concurrency()) {
            const pid_t child = begin(waiting.front(), options);
            running.emplace(child, std::move(waiting.front()));
            waiting.pop_front();
        }
        int status = 0;
        const Batch done = running.extract(wait(&status)).mapped();
        const std::size_t stopped = *done.current;
        inputs += stopped - done.first;
        const std::string said = lastWords(done.folder / "said");
        std::filesystem::remove_all(done.folder);
        munmap(done.current, sizeof(std::size_t));
        if (status == 0) continue;
        ++faults;
        std::printf("fault: --subject %s --seed %s --first %zu --inputs 1: %s\n", done.subject->name,
                    options.at("--seed").c_str(), stopped, describe(status).c_str());
        std::printf("%s\n", said.c_str());
        if (faults > tooManyFaults)
            waiting.clear();
        else if (stopped + 1 < done.end)
            waiting.push_back({done.subject, stopped + 1, done.end, nullptr, {}});
    }
    std::printf("%zu damaged inputs, %zu faults, seed %s\n", inputs, faults, options.at("--seed").c_str());
    return faults;
}

} // namespace
} // namespace reliability

// What Foundation allocates for nonsense fails on a phone as well, and what it keeps is its own matter.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1:detect_leaks=0"; }

int main(int count, char** arguments) {
    std::size_t faults = 0;
    const auto error =
        simulator::anyExceptionOf([&] { faults = reliability::run(reliability::parse(count, arguments)); });
    if (!error) return faults == 0 ? 0 : 1;
    std::fprintf(stderr, "damaged_input: %s\n", error->c_str());
    return 2;
}
