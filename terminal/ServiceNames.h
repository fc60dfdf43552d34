// The services' operations that can be made to fail on the way of the library's work, by the names
// that FailCall and FailAlways take: for who lets any one of them fail at random.
#pragma once

#include <array>
#include <string_view>

namespace standin {

inline constexpr auto kServiceNames = std::to_array<std::string_view>({
    "VLGetExch",
    "VLGetBaseAttrs2",
    "VLGetBaseAttrs",
    "VLGetSymbolInfos",
    "VLGetSymbolInfos2",
    "VLGetSymbolInfo",
    "VLFindSymbol",
    "VLFindSymbol2",
    "VLEX2ZUID2",
    "VLGetZUID",
    "VLGetExtendAttr",
    "VLGetSubGroup",
    "VLGetGroupSymbol",
    "TQSGetUserInfo",
    "TQSGetTSCount",
    "TQSGetTSInfo",
    "TQSGetTSStatus",
    "TQSGetTSAccount",
    "TQSGetTSAccountCount",
    "TQSGetTSAccountHolding",
    "TQSCall",
    "TQSGetUserExtraValue",
    "CStaticKey::Setup",
    "CStockAttr::GetID",
    "CStaticKey::GetFieldInt",
    "CStaticKey::GetFieldString",
    "TQLog::write",
    "tqShowDllMessage",
    "tqStockGetFieldString",
});

} // namespace standin
