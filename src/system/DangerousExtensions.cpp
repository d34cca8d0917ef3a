#include "system/DangerousExtensions.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace lindrel {

namespace {

// Programs and scripts, installers, settings, disk images, and files that lead to any of these.
constexpr auto kDangerous = std::to_array<std::wstring_view>({L".appinstaller",
                                                              L".application",
                                                              L".appref-ms",
                                                              L".appx",
                                                              L".appxbundle",
                                                              L".bat",
                                                              L".chm",
                                                              L".cmd",
                                                              L".com",
                                                              L".cpl",
                                                              L".diagcab",
                                                              L".exe",
                                                              L".gadget",
                                                              L".hlp",
                                                              L".hta",
                                                              L".img",
                                                              L".inf",
                                                              L".iso",
                                                              L".jar",
                                                              L".jnlp",
                                                              L".js",
                                                              L".jse",
                                                              L".library-ms",
                                                              L".lnk",
                                                              L".msc",
                                                              L".msh",
                                                              L".msi",
                                                              L".msix",
                                                              L".msixbundle",
                                                              L".msp",
                                                              L".mst",
                                                              L".msu",
                                                              L".pif",
                                                              L".pl",
                                                              L".ps1",
                                                              L".ps1xml",
                                                              L".psc1",
                                                              L".psd1",
                                                              L".psm1",
                                                              L".py",
                                                              L".pyc",
                                                              L".pyw",
                                                              L".pyz",
                                                              L".rb",
                                                              L".rdp",
                                                              L".reg",
                                                              L".scf",
                                                              L".scr",
                                                              L".sct",
                                                              L".search-ms",
                                                              L".searchconnector-ms",
                                                              L".settingcontent-ms",
                                                              L".sh",
                                                              L".shb",
                                                              L".shs",
                                                              L".theme",
                                                              L".themepack",
                                                              L".url",
                                                              L".vb",
                                                              L".vbe",
                                                              L".vbs",
                                                              L".vhd",
                                                              L".vhdx",
                                                              L".website",
                                                              L".wim",
                                                              L".ws",
                                                              L".wsc",
                                                              L".wsf",
                                                              L".wsh",
                                                              L".xbap",
                                                              L".xll"});

}  // namespace

bool IsDangerousExtension(std::wstring_view extension) {
    return std::find(std::begin(kDangerous), std::end(kDangerous), extension) != std::end(kDangerous);
}

}  // namespace lindrel
