#include "ui/test_printer.h"

#include <windows.h>

#include <winspool.h>

#include <filesystem>
#include <fstream>

#include "support/case_files.h"

namespace vexa::test {
namespace {

char kPrinter[] = "VexaTestPrinter";
char kDriver[] = "Vexa Test Driver";
char kDriverLibrary[] = "wineps.drv";
char kDescription[] = "vexatest.ppd";
char kPort[] = "VexaTest:";
constexpr const char* kPortsKey = "Software\\Wine\\Printing\\Spooler";

// What a PostScript printer can do, as drivers are told; the least that they are content with.
constexpr CaseFile kDescriptions[] = {
#include "printer.inc"
};

// The driver writes to what its port stands for, which is a path of the system below.
std::string HostPath(const std::string& path) {
    using GetHostPath = char*(CDECL*)(const WCHAR*);
    const auto function = reinterpret_cast<GetHostPath>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
    if (!function) return {};
    const std::wstring wide(path.begin(), path.end());
    char* const host = function(wide.c_str());
    const std::string copy = host ? host : "";
    HeapFree(GetProcessHeap(), 0, host);
    return copy;
}

bool PointPortTo(const std::string& target) {
    HKEY key = nullptr;
    if (RegCreateKeyA(HKEY_CURRENT_USER, kPortsKey, &key) != ERROR_SUCCESS) return false;
    const auto* bytes = reinterpret_cast<const BYTE*>(target.c_str());
    const LSTATUS result = RegSetValueExA(key, kPort, 0, REG_SZ, bytes, static_cast<DWORD>(target.size() + 1));
    RegCloseKey(key);
    return result == ERROR_SUCCESS;
}

bool InstallDriver() {
    char folder[MAX_PATH] = "";
    DWORD size = 0;
    if (!GetPrinterDriverDirectoryA(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder), sizeof(folder), &size)) {
        return false;
    }
    const std::string drivers = std::string(folder) + "\\3";
    std::filesystem::create_directories(drivers);
    std::ofstream(drivers + '\\' + kDescription, std::ios::binary) << kDescriptions[0].content;
    DRIVER_INFO_3A driver{};
    driver.cVersion = 3;
    driver.pName = kDriver;
    driver.pDriverPath = kDriverLibrary;
    driver.pConfigFile = kDriverLibrary;
    driver.pDataFile = kDescription;
    const BOOL isAdded =
        AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver), APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
    return isAdded || GetLastError() == ERROR_PRINTER_DRIVER_ALREADY_INSTALLED;
}

bool InstallPrinter() {
    char processor[] = "WinPrint";
    char dataType[] = "RAW";
    PRINTER_INFO_2A printer{};
    printer.pPrinterName = kPrinter;
    printer.pDriverName = kDriver;
    printer.pPortName = kPort;
    printer.pPrintProcessor = processor;
    printer.pDatatype = dataType;
    const HANDLE added = AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
    if (!added) return false;
    ClosePrinter(added);
    return SetDefaultPrinterA(kPrinter);
}

}  // namespace

TestPrinter::TestPrinter(const std::string& file) {
    const std::string target = HostPath(file);
    isThere_ = !target.empty() && PointPortTo(target) && InstallDriver() && InstallPrinter();
}

TestPrinter::~TestPrinter() {
    RemoveTestPrinter();
}

void RemoveTestPrinter() {
    HANDLE printer = nullptr;
    PRINTER_DEFAULTSA wanted{nullptr, nullptr, PRINTER_ALL_ACCESS};
    if (!OpenPrinterA(kPrinter, &printer, &wanted)) return;
    DeletePrinter(printer);
    ClosePrinter(printer);
}

bool HasPrinter() {
    DWORD size = 0;
    DWORD count = 0;
    EnumPrintersA(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &size, &count);
    return size > 0;
}

}  // namespace vexa::test
