// Darwin notifications: names without content that reach every process of the device.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace simulator {

// Begins to receive; `arrived` is called on a thread of its own. Once per process and after the device is
// mounted; without a device notifications stay in this process.
void receiveNotifications(std::function<void(const std::string& name)> arrived);

// Reaches every process that receives, this one included.
void postNotification(std::string_view name);

} // namespace simulator
