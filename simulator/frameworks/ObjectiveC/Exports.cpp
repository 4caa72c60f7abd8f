// Functions that the device's runtime exports and the one here only has inline.
extern "C" {

struct objc_class;
struct objc_object {
    objc_class* class_pointer;
};

objc_class* object_getClass(objc_object* object) {
    return object == nullptr ? nullptr : object->class_pointer;
}

} // extern "C"
