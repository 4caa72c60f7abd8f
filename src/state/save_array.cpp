#include "state/save_array.h"

#include "state/file_writing_message.h"

namespace rollkeeper {

void saveArray(NSArray array, NSString path) {
    Owner<NSMutableDictionary> request = make<NSMutableDictionary>();
    request->setObject(NSBundle::mainBundle().bundleIdentifier(), fileWriting::senderKey());
    request->setObject(array, fileWriting::arrayKey());
    request->setObject(path, fileWriting::pathKey());
    fileWriting::center().sendMessage(fileWriting::messageName(), request.get());
}

} // namespace rollkeeper
