// Pictures of assets: when they are delivered, what they show, how long they live.
#import "simulator/photos/photos_test.h"

#import "UIKit/UIKit.h"

#include <cmath>
#include <set>
#include <thread>

namespace simulator::test {

namespace {

class ImageTest : public PhotosTest {};

PHImageRequestOptions* synchronously() {
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    options.resizeMode = PHImageRequestOptionsResizeModeExact;
    options.synchronous = YES;
    return options;
}

/// The picture, autoreleased, and how often the handler ran before the request returned.
struct Answer {
    UIImage* image;
    int calls;
};

Answer requestNow(PHAsset* asset, CGSize size, PHImageContentMode mode = PHImageContentModeAspectFit) {
    __block Answer answer{nil, 0};
    [[PHImageManager defaultManager]
        requestImageForAsset:asset
                  targetSize:size
                 contentMode:mode
                     options:synchronously()
               resultHandler:^(UIImage* image, NSDictionary* info) {
                   EXPECT_TRUE([info objectForKey:PHImageResultRequestIDKey]);
                   EXPECT_EQ([info objectForKey:PHImageErrorKey] == nil, image != nil);
                   answer.image = [image retain];
                   ++answer.calls;
               }];
    [answer.image autorelease];
    return answer;
}

bool runMainLoopUntil(bool (^condition)(void)) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:10];
    while (!condition() && [end timeIntervalSinceNow] > 0)
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                 beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
    return condition();
}

} // namespace

TEST_F(ImageTest, SynchronousRequestAnswersOnceBeforeItReturns) {
    const Answer answer = requestNow(asset(0), CGSizeMake(175, 175));
    EXPECT_EQ(answer.calls, 1);
    EXPECT_TRUE(answer.image);
}

TEST_F(ImageTest, PictureFitsOrFillsTheTargetInTheAssetsShape) {
    const struct {
        CGSize target;
        PHImageContentMode mode;
        CGSize size;
    } cases[] = {
        {{175, 175}, PHImageContentModeAspectFit, {175, 131}},
        {{175, 175}, PHImageContentModeAspectFill, {233, 175}},
        {{1000, 75}, PHImageContentModeAspectFit, {100, 75}},
        {{9000, 9000}, PHImageContentModeAspectFit, {4032, 3024}},
        {{0, 0}, PHImageContentModeAspectFit, {1, 1}},
    };
    for (const auto& [target, mode, size] : cases) {
        const CGSize got = requestNow(asset(0), target, mode).image.size;
        EXPECT_EQ(got.width, size.width);
        EXPECT_EQ(got.height, size.height);
    }
}

TEST_F(ImageTest, EveryAssetHasItsOwnPicture) {
    std::set<std::string> pictures;
    for (std::size_t number = 0; number < 10; ++number) {
        NSData* png = UIImagePNGRepresentation(requestNow(asset(number), CGSizeMake(40, 40)).image);
        pictures.emplace(static_cast<const char*>([png bytes]), [png length]);
    }
    EXPECT_EQ(pictures.size(), 10u);
}

TEST_F(ImageTest, MissingAssetGivesNoPicture) {
    const Answer answer = requestNow(nil, CGSizeMake(175, 175));
    EXPECT_EQ(answer.calls, 1);
    EXPECT_FALSE(answer.image);
    PHAsset* gone = asset(0);
    for (int turn = 0; turn < 2; ++turn)
        changeLibrary(^{
            [PHAssetChangeRequest deleteAssets:@[ gone ]];
        });
    EXPECT_FALSE(requestNow(gone, CGSizeMake(175, 175)).image);
}

TEST_F(ImageTest, AsynchronousRequestAnswersOnceOnTheMainThread) {
    __block Texts answers;
    const auto request = ^(const char* name) {
        [[PHImageManager defaultManager]
            requestImageForAsset:asset(0)
                      targetSize:CGSizeMake(10, 10)
                     contentMode:PHImageContentModeAspectFit
                         options:nil
                   resultHandler:^(UIImage* image, NSDictionary*) {
                       answers.push_back(image && [NSThread isMainThread] ? name : "wrong");
                   }];
    };
    std::thread caller(^{
        @autoreleasepool {
            request("first");
            request("second");
        }
    });
    caller.join();
    EXPECT_EQ(answers, Texts{});
    EXPECT_TRUE(runMainLoopUntil(^{
        return answers.size() >= 2;
    }));
    EXPECT_EQ(answers, (Texts{"first", "second"}));
}

TEST_F(ImageTest, CancelledRequestDoesNotAnswer) {
    __block int calls = 0;
    PHImageManager* manager = [PHImageManager defaultManager];
    const auto request = ^{
        return [manager requestImageForAsset:asset(0)
                                  targetSize:CGSizeMake(10, 10)
                                 contentMode:PHImageContentModeAspectFit
                                     options:nil
                               resultHandler:^(UIImage*, NSDictionary*) {
                                   ++calls;
                               }];
    };
    const PHImageRequestID first = request();
    EXPECT_NE(request(), first);
    EXPECT_EQ(calls, 0);
    [manager cancelImageRequest:first];
    EXPECT_TRUE(runMainLoopUntil(^{
        return calls > 0;
    }));
    EXPECT_EQ(calls, 1);
}

TEST_F(ImageTest, PictureDoesNotOutliveTheHandlerUnlessRetained) {
    __block UIImage* kept = nil;
    __block NSUInteger references = 0;
    const auto handler = ^(UIImage* image, NSDictionary*) {
        kept = [image retain];
        references = [image retainCount];
    };
    [[PHImageManager defaultManager] requestImageForAsset:asset(0)
                                               targetSize:CGSizeMake(10, 10)
                                              contentMode:PHImageContentModeAspectFit
                                                  options:synchronously()
                                            resultHandler:handler];
    EXPECT_GT(references, 1u);
    EXPECT_EQ([kept retainCount], 1u);
    [kept release];
}

TEST_F(ImageTest, StoredPhotoIsTheNewestAndKeepsItsPixels) {
    UIImage* taken = [UIImage imageWithPixelSize:CGSizeMake(31, 17) seed:4711];
    ASSERT_TRUE(changeLibrary(^{
        EXPECT_TRUE(
            [[PHAssetChangeRequest creationRequestForAssetFromImage:taken] placeholderForCreatedAsset]);
    }));
    PHAsset* newest = [[PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage
                                                 options:sortedBy(@"creationDate", YES)] lastObject];
    EXPECT_EQ([newest pixelWidth], 31u);
    EXPECT_EQ([newest pixelHeight], 17u);
    UIImage* image = requestNow(newest, PHImageManagerMaximumSize).image;
    EXPECT_EQ([UIImagePNGRepresentation(image) isEqual:UIImagePNGRepresentation(taken)], YES);
}

} // namespace simulator::test
