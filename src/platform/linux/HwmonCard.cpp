#include "platform/linux/HwmonCard.h"

#include <libudev.h>
#include <memory>

namespace zpsg::platform {

std::string cardName(const std::string &modalias) {
    // Base class 03: a display controller.
    if (!modalias.starts_with("pci:") || modalias.find("bc03") == std::string::npos) {
        return {};
    }
    const std::unique_ptr<udev, decltype(&udev_unref)> context(udev_new(), &udev_unref);
    if (context == nullptr) {
        return {};
    }
    const std::unique_ptr<udev_hwdb, decltype(&udev_hwdb_unref)> database(udev_hwdb_new(context.get()),
                                                                          &udev_hwdb_unref);
    if (database == nullptr) {
        return {};
    }
    auto *entry = udev_list_entry_get_by_name(
        udev_hwdb_get_properties_list_entry(database.get(), modalias.c_str(), 0), "ID_MODEL_FROM_DATABASE");
    const char *model = entry != nullptr ? udev_list_entry_get_value(entry) : nullptr;
    return model != nullptr ? boxName(model) : std::string();
}

std::string boxName(const std::string &model) {
    const auto open = model.find('[');
    const bool bracketed = open != std::string::npos && model.back() == ']' && open + 2 < model.size();
    return bracketed ? model.substr(open + 1, model.size() - open - 2) : model;
}

} // namespace zpsg::platform
