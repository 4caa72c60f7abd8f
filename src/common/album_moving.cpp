#include "common/album_moving.h"

#include "common/albums.h"
#include "common/sheets.h"
#include "common/status_banner.h"

namespace rollkeeper {

namespace {

enum class Operation { moveOut, copyBack, returnAll };

struct OperationTexts {
    Photos result;
    NSString (*running)();
    NSString (*finished)();
    NSString (*nothingToDo)();
};

// "No photos to move" serves both directions, and return-all ends with the words of a move out: both are
// kept.
constexpr OperationTexts operations[] = {
    {Photos::hidden, [] { return "Moving photos"_ns; }, [] { return "Finished moving"_ns; },
     [] { return "No photos to move"_ns; }},
    {Photos::shown, [] { return "Returning photos"_ns; }, [] { return "Finished returning"_ns; },
     [] { return "No photos to move"_ns; }},
    {Photos::shown, [] { return "Returning all albums"_ns; }, [] { return "Finished moving"_ns; },
     [] { return "No photos to return."_ns; }},
};

const OperationTexts& textsOf(Operation operation) { return operations[static_cast<std::size_t>(operation)]; }

void announce(Operation operation) {
    showStatusBanner(textsOf(operation).running(), BannerLife::stays);
    showProgressSpinner();
}

void announceEnd(Operation operation) {
    showStatusBanner(textsOf(operation).finished(), BannerLife::hidesItself);
    dismissStatusBanner();
}

void run(Operation operation, Owner<NSMutableArray> photos) {
    if (photos->count() == 0) {
        showStatusBanner(textsOf(operation).nothingToDo(), BannerLife::hidesItself);
        return;
    }
    // Without the platform's helper nothing would ever end the banner.
    if (!canHideAssets()) return;
    onMainQueue([](Operation started) { announce(started); }, operation);
    apply(
        textsOf(operation).result, photos.get(),
        block<void()>([](Operation ended) { onMainQueue([](Operation last) { announceEnd(last); }, ended); },
                      operation)
            .get());
}

} // namespace

void moveAlbumPhotos(NSString title, MoveDirection direction) {
    const bool movesOut = direction == MoveDirection::moveOutOfCameraRoll;
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    for (PHAsset asset : each<PHAsset>(assetsOf(albumWithTitle(title))))
        if (asset.isHidden() != movesOut) photos->addObject(asset);
    run(movesOut ? Operation::moveOut : Operation::copyBack, std::move(photos));
}

void addMoveActions(Alert& sheet, NSString title) {
    const Owner<NSString> album = share(title);
    const auto move = [](NSString albumTitle, MoveDirection direction, UIAlertAction) {
        moveAlbumPhotos(albumTitle, direction);
    };
    sheet.addAction("Copy to camera roll"_ns, move, album, MoveDirection::copyToCameraRoll);
    sheet.addAction("Move out of camera roll"_ns, move, album, MoveDirection::moveOutOfCameraRoll);
    sheet.addCancel("Cancel"_ns);
}

void returnPhotos(Owner<NSMutableArray> photos) { run(Operation::returnAll, std::move(photos)); }

} // namespace rollkeeper
