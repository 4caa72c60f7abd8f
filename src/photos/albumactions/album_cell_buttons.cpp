#include "common/album_cell.h"
#include "common/edit_capabilities.h"
#include "common/tags.h"
#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"
#include "settings/settings.h"
#include "state/paths.h"

namespace rollkeeper::albumCell {

namespace {

constexpr std::int32_t stockFontSize = 15; // a size at which the stock fonts are left alone
constexpr CGFloat noFontSize = 0.0;        // a font without size hides its line

constexpr CGRect moveButtonFrame = {{0, 40}, {22, 22}};
constexpr CGRect lockButtonFrame = {{0, 70}, {22, 22}};
constexpr CGRect lockButtonFrameOfStockAlbum = {{0, 10}, {22, 22}};

bool isStockAlbum(PUAlbumListCellContentView cell) {
    return cell.editCapabilities() == editCapabilities::stockAlbum;
}

void addButton(PUAlbumListCellContentView cell, NSInteger tag, NSString imagePath, CGRect frame, SEL action) {
    const Owner<UIImageView> button = UIImageView::withImage(UIImage::withContentsOfFile(imagePath));
    button->setFrame(frame);
    button->setUserInteractionEnabled(true);
    button->setTag(tag);
    const auto tap = UITapGestureRecognizer::withTarget(cell, action);
    tap->setNumberOfTapsRequired(1);
    tap->setDelegate(cell);
    button->addGestureRecognizer(tap.get());
    cell.addSubview(button.get());
}

void applyFonts(PUAlbumListCellContentView cell) {
    albumCellFont.set(UIFont::systemFontOfSize(settings::albumFontSize));
    if (settings::albumFontSize != stockFontSize) {
        cell.titleTextField().setFont(albumCellFont.get());
        cell.subtitleLabel().setFont(albumCellFont.get());
    }
    if (!settings::layoutShowTitle) cell.titleTextField().setFont(UIFont::systemFontOfSize(noFontSize));
    if (!settings::layoutShowSubtitle) cell.subtitleLabel().setFont(UIFont::systemFontOfSize(noFontSize));
}

} // namespace

void layoutSubviews(PUAlbumListCellContentView self, SEL command) {
    original<layoutSubviews>(self, command);

    const NSUInteger capabilities = self.editCapabilities();
    const bool isPlain =
        capabilities == editCapabilities::none || capabilities == editCapabilities::reorderOnly;
    if (isPlain && !self.deleteButton()) self.setEditCapabilities(editCapabilities::stockAlbum);
    applyFonts(self);
}

bool showsDeleteButtonWhenEditing(PUAlbumListCellContentView self, SEL command) {
    if (settings::enabled) return true;
    return original<showsDeleteButtonWhenEditing>(self, command);
}

void createButtons(PUAlbumListCellContentView self, SEL) {
    const bool isUserAlbum = self.editCapabilities() == editCapabilities::userAlbum;
    if (isUserAlbum) self.deleteButton().setHidden(false);
    if (isUserAlbum && !self.viewWithTag(tag::moveButton))
        addButton(self, tag::moveButton, path::moveImage(), moveButtonFrame, selector<"askToMoveAlbum">());
    self.bringSubviewToFront(self.viewWithTag(tag::moveButton));

    if (!self.viewWithTag(tag::lockButton))
        addButton(self, tag::lockButton, path::greenLockImage(),
                  isStockAlbum(self) ? lockButtonFrameOfStockAlbum : lockButtonFrame,
                  selector<"lockAlbum">());
    self.bringSubviewToFront(self.viewWithTag(tag::lockButton));
}

// A delete button inside an album's cell: stock albums show only the lock.
void layoutButton(UIView self, SEL command) {
    original<layoutButton>(self, command);

    const auto cell = ifKindOf<PUAlbumListCellContentView>(self.superview());
    if (!cell) return;
    cell.createButtons();
    if (!isStockAlbum(cell)) return;
    cell.viewWithTag(tag::lockButton).setFrame(lockButtonFrameOfStockAlbum);
    self.setHidden(true);
}

} // namespace rollkeeper::albumCell
