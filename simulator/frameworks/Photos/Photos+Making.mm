#import "Photos/Photos+Making.h"

namespace simulator {

AssetFilter filterOf(PHFetchOptions* options) {
    return {.includeHidden = options.includeHiddenAssets == YES};
}

NSString* stringOf(const std::string& text) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

std::string textOf(NSString* string) {
    const char* bytes = [string UTF8String];
    return bytes ? bytes : "";
}

Identifiers identifiersOf(NSArray* strings) {
    Identifiers identifiers;
    for (NSString* string in strings)
        identifiers.push_back(textOf(string));
    return identifiers;
}

void raiseLibraryError(const std::string& message) {
    @throw [NSException exceptionWithName:NSInternalInconsistencyException
                                   reason:stringOf("the photo library cannot be read: " + message)
                                 userInfo:nil];
}

} // namespace simulator
