#import "simulator/uikit/uikit_test.h"

#include "UIKit/model/Bitmap.h"

namespace simulator::test {

namespace {

class Image : public UIKitTest {
  protected:
    // A PNG file of the device.
    NSString* write(const char* name, std::string_view bytes) {
        device().writeFile(std::string("/var/mobile/") + name, bytes);
        return [NSString stringWithFormat:@"/var/mobile/%s", name];
    }

    static std::string png(std::uint32_t width, std::uint32_t height) {
        const std::vector<std::uint8_t> file = Bitmap::generated(width, height, 1)->png();
        return {file.begin(), file.end()};
    }
};

TEST_F(Image, comes_from_a_png_file) {
    UIImage* image = [UIImage imageWithContentsOfFile:write("lock.png", png(30, 20))];
    EXPECT_EQ([image size], CGSizeMake(30, 20));
    EXPECT_EQ([image scale], 1);
}

TEST_F(Image, takes_the_file_for_the_scale_of_the_screen) {
    NSString* plain = write("lock.png", png(10, 10));
    write("lock@2x.png", png(20, 20));
    UIImage* image = [UIImage imageWithContentsOfFile:plain];
    EXPECT_EQ([image scale], 2);
    EXPECT_EQ([image size], CGSizeMake(10, 10));
    UIImage* three = [UIImage imageWithContentsOfFile:write("three@3x.png", png(30, 30))];
    EXPECT_EQ([three size], CGSizeMake(10, 10));
}

TEST_F(Image, is_nil_for_missing_and_damaged_files) {
    const std::string whole = png(30, 20);
    std::string flipped = whole;
    flipped[whole.size() / 2] ^= 0x55;
    EXPECT_EQ([UIImage imageWithContentsOfFile:nil], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:@""], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:@"/var/mobile/missing.png"], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:write("empty.png", "")], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:write("text.png", "no picture")], nil);
    EXPECT_EQ([UIImage imageWithContentsOfFile:write("flipped.png", flipped)], nil);
    for (std::size_t length = 1; length < whole.size() - 12; length += 7) // 12: the end mark may be missing
        EXPECT_EQ([UIImage imageWithContentsOfFile:write("cut.png", whole.substr(0, length))], nil) << length;
    EXPECT_NE([UIImage imageWithContentsOfFile:write("whole.png", whole)], nil);
    EXPECT_EQ([UIImage imageWithData:nil], nil);
}

TEST_F(Image, survives_being_written_and_read) {
    UIImage* image = [UIImage imageWithPixelSize:CGSizeMake(13, 7) seed:42];
    NSData* file = UIImagePNGRepresentation(image);
    EXPECT_EQ([[UIImage imageWithData:file] size], CGSizeMake(13, 7));
    EXPECT_TRUE([UIImagePNGRepresentation([UIImage imageWithData:file]) isEqual:file]);
    EXPECT_FALSE([UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(13, 7)
                                                                  seed:43]) isEqual:file]);
    EXPECT_EQ(UIImagePNGRepresentation(nil), nil);
}

TEST_F(Image, gives_an_image_view_its_size) {
    UIImage* image = [UIImage imageWithPixelSize:CGSizeMake(13, 7) seed:42];
    UIImageView* view = [[[UIImageView alloc] initWithImage:image] autorelease];
    EXPECT_EQ([view frame], CGRectMake(0, 0, 13, 7));
    EXPECT_EQ([[[[UIImageView alloc] initWithImage:nil] autorelease] frame], CGRectZero);
}

} // namespace

} // namespace simulator::test
