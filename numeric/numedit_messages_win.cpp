#include "numeric/numedit_messages_win.h"

#include <vorn32/numedit.h>

namespace vorn::numeric {
namespace {

constexpr DWORD kValueSize = sizeof(double);
constexpr LRESULT kValueSizeAnswer = 12;

LRESULT OnGetValueSize(DWORD* size) {
    if (size != nullptr) {
        *size = kValueSize;
    }
    return kValueSizeAnswer;
}

bool AnswerReader(HWND window, UINT message, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case VNMM_GETLASTGOODNUMBER:
        result = nmGetLastGoodNumber(window, reinterpret_cast<char*>(lParam));
        return true;
    case VNMM_GETINTEGER:
        result = nmGetInteger(window);
        return true;
    case VNMM_GETLONGINTEGER:
        result = nmGetLongInteger(window);
        return true;
    case VNMM_GETUNSIGNEDINTEGER:
        result = static_cast<LRESULT>(nmGetUnsignedInteger(window));
        return true;
    case VNMM_GETUNSIGNEDLONG:
        result = static_cast<LRESULT>(nmGetUnsignedLong(window));
        return true;
    case VNMM_GETFLOAT:
        result = reinterpret_cast<LRESULT>(nmGetFloat(window, reinterpret_cast<float*>(lParam)));
        return true;
    case VNMM_GETDOUBLE:
    case VNMM_GETVALUE:
        nmGetDouble(window, reinterpret_cast<double*>(lParam));
        return true;
    case VNMM_GETLONGDOUBLE:
        nmGetLongDouble(window, reinterpret_cast<double*>(lParam));
        return true;
    case VNMM_GETVALUESIZE:
        result = OnGetValueSize(reinterpret_cast<DWORD*>(lParam));
        return true;
    default:
        return false;
    }
}

bool AnswerWriter(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case VNMM_SETINTEGER:
        nmSetInteger(window, static_cast<LONG>(wParam));
        return true;
    case VNMM_SETLONGINTEGER:
        nmSetLongInteger(window, static_cast<LONG>(wParam));
        return true;
    case VNMM_SETUNSIGNEDINTEGER:
        nmSetUnsignedInteger(window, static_cast<DWORD>(wParam));
        return true;
    case VNMM_SETUNSIGNEDLONG:
        nmSetUnsignedLong(window, static_cast<DWORD>(wParam));
        return true;
    case VNMM_SETFLOAT:
        result = nmSetFloat(window, reinterpret_cast<const float*>(lParam));
        return true;
    case VNMM_SETDOUBLE:
    case VNMM_SETVALUE:
        nmSetDouble(window, reinterpret_cast<const double*>(lParam));
        return true;
    case VNMM_SETLONGDOUBLE:
        nmSetLongDouble(window, reinterpret_cast<const double*>(lParam));
        return true;
    default:
        return false;
    }
}

bool AnswerAppearance(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const auto color = static_cast<COLORREF>(lParam);
    switch (message) {
    case VNMM_SETDISPLAYSTYLE:
        result = nmSetDisplayStyle(window, static_cast<int>(wParam));
        return true;
    case VNMM_ENABLESPINBUTTONS:
        result = nmEnableSpinButtons(window, wParam != 0);
        return true;
    case VNMM_SETALIGNMENT:
        result = nmSetAlignment(window, static_cast<int>(wParam));
        return true;
    case VNMM_SETBORDERSTYLE:
        result = nmSetBorderStyle(window, static_cast<DWORD>(wParam));
        return true;
    case VNMM_SETBACKGROUNDCOLOR:
        result = nmSetColor(window, VORN_COLOR_FACE, color);
        return true;
    case VNMM_SETTEXTCOLOR:
        result = nmSetColor(window, VORN_COLOR_TEXT, color);
        return true;
    case VNMM_GETMINHEIGHT:
        result = nmGetMinHeight(window);
        return true;
    case VNMM_GETMINWIDTH:
        result = nmGetMinWidth(window);
        return true;
    default:
        return false;
    }
}

} // namespace

bool AnswerOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
    case VNMM_GETEDITPARAMS:
        nmGetEditParams(window, reinterpret_cast<NmEditParams*>(lParam));
        return true;
    case VNMM_SETEDITPARAMS:
        result = nmSetEditParams(window, reinterpret_cast<const NmEditParams*>(lParam));
        return true;
    case VNMM_SETNULL:
        result = nmSetNull(window);
        return true;
    case VNMM_ISNULL:
        result = nmIsNull(window);
        return true;
    case VNMM_OKTOCHANGE:
        result = nmOkToChange(window);
        return true;
    case VNMM_QUERY:
        return true;
    default:
        return AnswerReader(window, message, lParam, result) ||
               AnswerWriter(window, message, wParam, lParam, result) ||
               AnswerAppearance(window, message, wParam, lParam, result);
    }
}

} // namespace vorn::numeric
