// Every replaced method, first with the library enabled, then after a reload that disables it: the table says
// which of them pass straight through, and which still act. All stock methods are stubs here, and whatever a
// replacement asks of its receiver or arguments raises, so that nothing it does goes unseen.
#import "AppSupport/AppSupport.h"
#import "filtering/filtering_fixture.h"

#include "device/clock.h"
#include "device/exceptions.h"
#include "support/table.h"

#include <objc/runtime.h>

// Claims to have every method, and has hardly any.
@interface Anybody : FakeCollection
@end

@implementation Anybody

- (BOOL)respondsToSelector:(SEL)selector {
    return YES;
}

@end

@interface PUAlbumListViewController (Moving)
- (void)reloadCameraRollWithMove:(BOOL)move;
@end

namespace simulator::test {
namespace {

// Whole numbers and floating-point numbers travel in registers of their own, so this stands for any method.
using AnyMethod = std::uintptr_t (*)(id, SEL, std::uintptr_t, std::uintptr_t, std::uintptr_t, std::uintptr_t,
                                     std::uintptr_t, std::uintptr_t, double);
using Arguments = std::array<std::uintptr_t, 4>;

using Call = std::tuple<id, std::string, Arguments, double>;

std::vector<Call> stockCalls;
std::uintptr_t stockAnswer;

int laterQuestions;

id askedLater(id, SEL) {
    ++laterQuestions;
    return nil;
}

std::uintptr_t stockMethod(id self, SEL command, std::uintptr_t first, std::uintptr_t second,
                           std::uintptr_t third, std::uintptr_t fourth, std::uintptr_t, std::uintptr_t,
                           double number) {
    stockCalls.push_back({self, sel_getName(command), {first, second, third, fourth}, number});
    return stockAnswer;
}

struct MethodOf {
    explicit MethodOf(const TableRow& row) : selector(sel_registerName(row.at("selector").c_str())) {
        const Class named = objc_getClass(row.at("class").c_str());
        owner = row.at("kind") == "+" ? object_getClass(named) : named;
        method = class_getInstanceMethod(owner, selector);
        answer = typeOf(method_copyReturnType(method));
        for (unsigned index = 2; index < method_getNumberOfArguments(method); ++index)
            arguments += typeOf(method_copyArgumentType(method, index));
        takesNumber = arguments == "d";
        // The question mark is the second half of a block's type, which GNUstep takes for an argument.
        std::erase_if(arguments, [](char type) { return type == 'd' || type == '{' || type == '?'; });
    }
    static char typeOf(char* encoding) {
        return *std::unique_ptr<char, decltype(&std::free)>(encoding, &std::free);
    }

    SEL selector;
    Class owner;
    Method method;
    char answer;
    std::string arguments; // the types of those in registers for whole numbers
    bool takesNumber;
};

std::uintptr_t number(id object) { return reinterpret_cast<std::uintptr_t>(object); }

FakeCollection* anybody() { return [Anybody collectionOfType:1 subtype:2 title:@"Work"]; }

Arguments argumentsFor(const TableRow& row, const MethodOf& called) {
    // Past the replacement that is installed over their own.
    if (row.at("group") == "whatsapp") return {2, 2, 0, 0};
    if (row.at("group") == "imgur")
        return {number([Anybody collectionOfType:4 subtype:2 title:nil]), number(anybody())};
    Arguments arguments = {};
    for (std::size_t index = 0; index < called.arguments.size(); ++index)
        if (called.arguments[index] == '@') arguments[index] = number(anybody());
    return arguments;
}

// Whether the call was handed on once, as it came, and its answer handed back.
bool passesThrough(const TableRow& row, std::uintptr_t answer) {
    const MethodOf called(row);
    const id receiver = anybody();
    const Arguments given = argumentsFor(row, called);
    const double number = called.takesNumber ? 3 : 0;
    stockCalls.clear();
    stockAnswer = answer;
    const auto call = reinterpret_cast<AnyMethod>(method_getImplementation(called.method));
    const std::uintptr_t result =
        call(receiver, called.selector, given[0], given[1], given[2], given[3], 0, 0, number);
    // Registers that carry no argument hold anything.
    for (auto& [stockReceiver, selector, arguments, stockNumber] : stockCalls) {
        for (std::size_t index = called.arguments.size(); index < given.size(); ++index)
            arguments[index] = given[index];
        if (!called.takesNumber) stockNumber = number;
    }
    const bool isAnswered =
        called.answer == 'v' || (called.answer == '@' ? result == answer : (result & 0xFF) == answer);
    return isAnswered && stockCalls == std::vector{Call{receiver, row.at("selector"), given, number}};
}

class Matrix : public FilteringTest, public testing::WithParamInterface<std::pair<const char*, const char*>> {
  protected:
    Matrix() {
        for (const TableRow& row : readTable("hook-table.tsv"))
            if (row.at("group").starts_with(GetParam().second) && row.at("action") == "replace")
                m_rows.push_back(row);
    }
    void prepare() {
        change([](Conditions& conditions) {
            conditions.manualClock = true;
            if (GetParam().second == std::string("albumsScreen")) conditions.coreFoundationVersion = 1556.0;
        });
        lockAlbums({"Work"});
        registerApplication(GetParam().first, {.start = {}, .frameworks = {}, .worksInRootFolder = true});
        setCurrentRelease(Release::complete);
        for (const TableRow& row : m_rows) {
            const MethodOf stock(row);
            class_replaceMethod(stock.owner, stock.selector, reinterpret_cast<IMP>(stockMethod),
                                method_getTypeEncoding(stock.method));
        }
        // By timers, and of controllers that were recorded.
        for (const char* name :
             {"movePhoto", "reloadContentView", "selectedAssets", "_currentContentTileController"})
            class_addMethod([Anybody class], sel_registerName(name), reinterpret_cast<IMP>(askedLater),
                            "@@:");
        startComplete(GetParam().first);
    }
    bool hasActed(const TableRow& row) {
        const bool isYesOrNo = MethodOf(row).answer == 'C';
        bool isThrough = true;
        laterQuestions = 0;
        const auto raised = anyExceptionOf([&] {
            for (const std::uintptr_t answer :
                 {isYesOrNo ? 0 : number(anybody()), isYesOrNo ? 1 : number(anybody())})
                isThrough = passesThrough(row, answer) && isThrough;
        });
        const bool acts = hasActedForLater();
        return raised || !isThrough || acts;
    }

  private:
    // Timers, controllers that were recorded, and messages that are served.
    bool hasActedForLater() {
        clock().advance(1);
        if (GetParam().second == std::string("photos")) useRecordedControllers();
        CPDistributedMessagingCenter* center =
            [CPDistributedMessagingCenter centerNamed:@"com.nrv.rollkeeper"];
        const bool isServed = [center sendMessageName:@"savearray" userInfo:nil];
        [center unregisterForMessageName:@"savearray"];
        [center stopServer];
        return laterQuestions > 0 || isServed;
    }
    // The move of picked photos takes them from the album, else from the grid; from the one-up view when the
    // album has none.
    static void useRecordedControllers() {
        PUAlbumListViewController* list = [[[PUAlbumListViewController alloc] init] autorelease];
        [list reloadCameraRollWithMove:YES];
        PUPhotosAlbumViewController* empty = [[[PUPhotosAlbumViewController alloc] init] autorelease];
        [empty setAssetCollection:nil
            fetchResultContainingAssetCollection:nil
                                 filterPredicate:nil
                            existingFetchResults:nil];
        [list reloadCameraRollWithMove:YES];
    }

  protected:
    std::vector<TableRow> m_rows;
};

TEST_P(Matrix, methods_act_as_the_table_says) {
    prepare();
    for (const TableRow& row : m_rows)
        for (const bool enabled : {true, false})
            @autoreleasepool {
                auto preferences = nlohmann::json::parse(row.at("with").empty() ? "{}" : row.at("with"));
                preferences["enabled"] = enabled;
                reloadPreferences(preferences);
                EXPECT_EQ(hasActed(row),
                          row.at("acts") == "always" || (row.at("acts") == "enabled" && enabled))
                    << row.at("class") << " " << row.at("selector") << ", enabled: " << enabled;
            }
}

INSTANTIATE_TEST_SUITE_P(
    Hosts, Matrix,
    testing::Values(std::pair(host::camera, "camera"), std::pair(host::photos, "photos"),
                    std::pair(host::photos, "albumsScreen"), std::pair(host::messenger, "messenger"),
                    std::pair(host::whatsApp, "whatsapp"), std::pair(host::imgur, "imgur"),
                    std::pair(host::springBoard, "springboard"), std::pair(host::plain, "shared")));

} // namespace
} // namespace simulator::test
