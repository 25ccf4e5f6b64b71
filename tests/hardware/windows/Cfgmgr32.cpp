// Stands in for wine's own cfgmgr32.dll, which up to wine 8 lacks what hidapi lists devices with, so that the
// library as it is meets a device: the list comes from the older calls. Nothing of Windows itself is
// replaced, where the library's name belongs to the system and a file beside the program isn't looked at.
#define WIN32_LEAN_AND_MEAN
#define CMAPI // not imported: defined here
#include <windows.h>

#include <cfgmgr32.h>
#include <setupapi.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

using Text = std::vector<wchar_t>;

/// The paths of the present interfaces, each with its final zero, and a zero after the last.
Text listOf(const GUID &type) {
    Text list;
    HDEVINFO devices = SetupDiGetClassDevsW(&type, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    SP_DEVICE_INTERFACE_DATA device{};
    device.cbSize = sizeof(device);
    for (DWORD index = 0; SetupDiEnumDeviceInterfaces(devices, nullptr, &type, index, &device) != FALSE;
         ++index) {
        DWORD size = 0;
        SetupDiGetDeviceInterfaceDetailW(devices, &device, nullptr, 0, &size, nullptr);
        std::vector<std::byte> buffer(std::max<std::size_t>(size, sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W)));
        auto *detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W *>(buffer.data());
        detail->cbSize = sizeof(*detail);
        if (SetupDiGetDeviceInterfaceDetailW(devices, &device, detail, size, nullptr, nullptr) != FALSE) {
            list.insert(list.end(), detail->DevicePath,
                        detail->DevicePath + lstrlenW(detail->DevicePath) + 1);
        }
    }
    SetupDiDestroyDeviceInfoList(devices);
    list.push_back(L'\0');
    return list;
}

} // namespace

extern "C" {

CONFIGRET WINAPI CM_Get_Device_Interface_List_SizeW(PULONG length, LPGUID type, DEVINSTID_W, ULONG) {
    *length = static_cast<ULONG>(listOf(*type).size());
    return CR_SUCCESS;
}

CONFIGRET WINAPI CM_Get_Device_Interface_ListW(LPGUID type, DEVINSTID_W, PWCHAR buffer, ULONG length, ULONG) {
    const Text list = listOf(*type);
    if (list.size() > length) {
        return CR_BUFFER_SMALL;
    }
    std::copy(list.begin(), list.end(), buffer);
    return CR_SUCCESS;
}

// What else hidapi wants to know of a device only describes it to a reader.
CONFIGRET WINAPI CM_Get_Device_Interface_PropertyW(LPCWSTR, const DEVPROPKEY *, DEVPROPTYPE *, PBYTE, PULONG,
                                                   ULONG) {
    return CR_NO_SUCH_VALUE;
}
CONFIGRET WINAPI CM_Get_DevNode_PropertyW(DEVINST, const DEVPROPKEY *, DEVPROPTYPE *, PBYTE, PULONG, ULONG) {
    return CR_NO_SUCH_VALUE;
}
CONFIGRET WINAPI CM_Locate_DevNodeW(PDEVINST, DEVINSTID_W, ULONG) { return CR_NO_SUCH_DEVNODE; }
CONFIGRET WINAPI CM_Get_Parent(PDEVINST, DEVINST, ULONG) { return CR_NO_SUCH_DEVNODE; }
}
