/*
 * VORN32: the numeric edit (window class "VORNNumEdit32").
 *
 * A one-line field for a number, with optional spin buttons. What is typed stays a number within
 * its range; without the focus it is displayed in one of ten formats with the user's characters. It
 * can hold no number at all and is empty then. Dialog code written for a system edit works with it:
 * it answers the text, selection and clipboard messages of one and notifies its parent with the
 * same codes (EN_SETFOCUS, EN_KILLFOCUS, EN_UPDATE, EN_CHANGE), and with VNMN_TEXTCUT. What the
 * functions below change is not notified, but for a cut text.
 *
 * Before a change by the user, and before those by the functions that say so, the control sends
 * itself VNMM_OKTOCHANGE; a host that subclassed it answers 0 to refuse. After every change it
 * sends itself VNMM_CHANGED.
 *
 * The number is kept as text of at most 63 characters, with "." as decimal character; that is what
 * WM_GETTEXT gives. A text that WM_SETTEXT brings may be anything. Where the text is no number the
 * value is that of the part in front that is one, or 0.
 *
 * While the control paints, it sends its parent WM_CTLCOLOREDIT. A brush and colours that the
 * parent answers take the place of the field's own; those of the system itself, which every dialog
 * answers that does not know better, do not.
 *
 * Functions on a window that is no numeric edit answer 0, unless they say otherwise. "Redraws"
 * means at once; the result of such a function is that of RedrawWindow.
 */
#ifndef VORN32_NUMEDIT_H
#define VORN32_NUMEDIT_H

#include <vorn32/library.h>

/* Window styles. The functions keep them in step. Of several borders the highest bit wins. */
#define VNMS_CENTER 0x0001   /* centred without the focus; with VNMS_RIGHT left */
#define VNMS_RIGHT 0x0002    /* at the right without the focus */
#define VNMS_SPIN 0x0004     /* the spin buttons */
#define VNMS_NUMBER 0x0008   /* written in the font, as without a display style */
#define VNMS_DIGITS 0x0010   /* an integer, drawn as on a display of digits */
#define VNMS_CELLS 0x0020    /* each character in a box; wins over VNMS_DIGITS */
#define VNMS_READONLY 0x0800 /* keys and spin buttons beep */
#define VNMS_SUNKEN 0x1000   /* sunken border */
#define VNMS_RAISED 0x2000   /* raised border */
#define VNMS_LINE 0x4000     /* a line around it */

/* Format kinds: how the number is displayed without the focus. */
#define NM_GENERAL 0                      /* 12 digits, decimals; an exponent as it comes */
#define NM_INTEGER 1                      /* -1234 */
#define NM_INTEGER_GROUPED 2              /* -1,234 */
#define NM_INTEGER_PARENTHESES 3          /* (1234) */
#define NM_INTEGER_GROUPED_PARENTHESES 4  /* (1,234) */
#define NM_FLOATING 5                     /* -1234.50, decimals in front of an exponent too */
#define NM_FLOATING_GROUPED 6             /* -1,234.50 */
#define NM_FLOATING_PARENTHESES 7         /* (1234.50) */
#define NM_FLOATING_GROUPED_PARENTHESES 8 /* (1,234.50) */
#define NM_FLOATING_UNPADDED 9 /* NM_FLOATING, but functions store no decimals that are 0 */

/* What nmSetDisplayStyle takes. */
#define VNMD_TEXT 0   /* written in the font */
#define VNMD_DIGITS 1 /* as VNMS_DIGITS */
#define VNMD_CELLS 2  /* as VNMS_CELLS */

/* What nmSetAlignment takes. */
#define VNMA_LEFT 0   /* at the left */
#define VNMA_CENTER 1 /* centred */
#define VNMA_RIGHT 2  /* at the right */

/* In NmEditParams: the user's number of decimal digits. */
#define NM_USER_DECIMAL_DIGITS 0xFFFFFFFF

/* Format and range, 44 bytes. */
#include <pshpack4.h>
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct NmEditParams {
    DWORD formatKind;    /* one of the format kinds, NM_GENERAL to NM_FLOATING_UNPADDED */
    DWORD rangeCheck;    /* non-zero: numbers are kept and read within the range */
    DWORD decimalDigits; /* 16 bits count; NM_USER_DECIMAL_DIGITS: "iDigits", or 2 without it */
    DWORD reserved;      /* neither read nor written */
    double minValue;     /* the least number; above the maximum, it is the only one */
    double maxValue;     /* the greatest number */
    DWORD useRegional;   /* non-zero: the rest is the user's, and follows WM_WININICHANGE */
    WORD thousandChar;   /* 0: the user's, "sThousand" */
    WORD decimalChar;    /* 0: the user's, "sDecimal" */
    DWORD leadingZero;   /* non-zero: 0.50, otherwise .50 */
} NmEditParams;
#include <poppack.h>

/*
 * Messages: the functions' twins, with their results. In the comments "lParam: text" and the like
 * say where the argument is.
 */
#define VNMM_GETEDITPARAMS (WM_USER + 135)      /* lParam: NmEditParams */
#define VNMM_SETEDITPARAMS (WM_USER + 136)      /* lParam: NmEditParams */
#define VNMM_GETLASTGOODNUMBER (WM_USER + 137)  /* lParam: buffer */
#define VNMM_GETINTEGER (WM_USER + 138)         /* */
#define VNMM_GETLONGINTEGER (WM_USER + 139)     /* */
#define VNMM_GETFLOAT (WM_USER + 140)           /* lParam: float */
#define VNMM_GETDOUBLE (WM_USER + 141)          /* lParam: double */
#define VNMM_GETLONGDOUBLE (WM_USER + 142)      /* lParam: double */
#define VNMM_SETINTEGER (WM_USER + 143)         /* wParam: number */
#define VNMM_SETLONGINTEGER (WM_USER + 144)     /* wParam: number */
#define VNMM_SETFLOAT (WM_USER + 145)           /* lParam: float */
#define VNMM_SETDOUBLE (WM_USER + 146)          /* lParam: double */
#define VNMM_SETLONGDOUBLE (WM_USER + 147)      /* lParam: double */
#define VNMM_SETDISPLAYSTYLE (WM_USER + 148)    /* wParam: style */
#define VNMM_ENABLESPINBUTTONS (WM_USER + 149)  /* wParam: enable */
#define VNMM_SETALIGNMENT (WM_USER + 150)       /* wParam: alignment */
#define VNMM_SETNULL (WM_USER + 151)            /* */
#define VNMM_ISNULL (WM_USER + 152)             /* */
#define VNMM_GETMINHEIGHT (WM_USER + 155)       /* */
#define VNMM_GETMINWIDTH (WM_USER + 156)        /* */
#define VNMM_SETBACKGROUNDCOLOR (WM_USER + 157) /* lParam: colour code, slot 2 */
#define VNMM_SETTEXTCOLOR (WM_USER + 158)       /* lParam: colour code, slot 4 */
#define VNMM_OKTOCHANGE (WM_USER + 159)         /* sent to itself; result: 0 to refuse, else 1 */
#define VNMM_SETUNSIGNEDINTEGER (WM_USER + 160) /* wParam: number */
#define VNMM_SETUNSIGNEDLONG (WM_USER + 161)    /* wParam: number */
#define VNMM_GETUNSIGNEDINTEGER (WM_USER + 162) /* */
#define VNMM_GETUNSIGNEDLONG (WM_USER + 163)    /* */
#define VNMM_SETBORDERSTYLE (WM_USER + 164)     /* wParam: border style */

/* Sent by the control to itself after a change of its number or format. */
#define VNMM_CHANGED (WM_USER + 400)

/*
 * VNMM_SETVALUE does what nmSetDouble does, VNMM_GETVALUE what nmGetDouble does; both result in 0,
 * and so does VNMM_QUERY. VNMM_GETVALUESIZE writes 8, the size of a double, to the DWORD that
 * lParam points to, if it does, and results in 12.
 */
#define VNMM_SETVALUE 0x0D00 /* lParam: double */
#define VNMM_GETVALUE 0x0D01 /* lParam: double */
#define VNMM_QUERY 0x0D05
#define VNMM_GETVALUESIZE 0x0D07 /* lParam: DWORD, or null */

/*
 * Notification: the text of a number that a spin button or a function made reached the text limit
 * and was cut to one character less.
 */
#define VNMN_TEXTCUT 0x0500

#ifdef __cplusplus
extern "C" {
#endif

/* Fills all fields but the reserved one. */
VORNAPI void WINAPI nmGetEditParams(HWND window, NmEditParams* params);

/*
 * Takes format and range; the text stays as it is. Any kind but NM_GENERAL also gives a control
 * without a display style VNMS_NUMBER. Redraws. The result is that of VNMM_CHANGED.
 */
VORNAPI LRESULT WINAPI nmSetEditParams(HWND window, const NmEditParams* params);

/* Shows (non-zero) or hides the spin buttons. Redraws. */
VORNAPI BOOL WINAPI nmEnableSpinButtons(HWND window, BOOL enable);

/* Aligns the number, as one of VNMA_; any other value means VNMA_LEFT. Redraws. */
VORNAPI BOOL WINAPI nmSetAlignment(HWND window, int alignment);

/*
 * Sets the display style, one of the VNMD_ styles; any other number takes the style bits away and
 * stays without effect. Redraws.
 */
VORNAPI BOOL WINAPI nmSetDisplayStyle(HWND window, int style);

/*
 * Sets the border: 0 none, 1 a line, 2 raised, 3 sunken. The window becomes as large as its client
 * area and the border. A number above 3 takes the style bits away and resizes the window to its
 * client area. Answers 1.
 */
VORNAPI BOOL WINAPI nmSetBorderStyle(HWND window, DWORD borderStyle);

/*
 * Sets a colour: VORN_COLOR_HIGHLIGHT, VORN_COLOR_SHADOW and VORN_COLOR_BACKGROUND (8) of the
 * border, VORN_COLOR_FACE (2) the field, VORN_COLOR_TEXT its text. Any other slot changes nothing.
 * Redraws.
 */
VORNAPI BOOL WINAPI nmSetColor(HWND window, int slot, COLORREF colorCode);

/* Makes the control empty, when VNMM_OKTOCHANGE allows it. Redraws; 0 when it was refused. */
VORNAPI BOOL WINAPI nmSetNull(HWND window);

/* Whether there is no number: non-zero, and 1 when there is no numeric edit. */
VORNAPI BOOL WINAPI nmIsNull(HWND window);

/* The control's own answer to VNMM_OKTOCHANGE: 1, for any window. */
VORNAPI BOOL WINAPI nmOkToChange(HWND window);

/*
 * The least size that the control needs: the height of its font; the width of a character and the
 * spin buttons; and the border.
 */
VORNAPI int WINAPI nmGetMinHeight(HWND window);
VORNAPI int WINAPI nmGetMinWidth(HWND window);

/*
 * Read the number, within the range if it is checked; 0 of an empty control. Integers are truncated
 * toward zero. The signed ones end at the limits of 32 bits, those of 16 bits too; the unsigned
 * ones give negative numbers their signed bits and end at 4294967295.
 */
VORNAPI LONG WINAPI nmGetShort(HWND window);
VORNAPI LONG WINAPI nmGetInteger(HWND window);
VORNAPI LONG WINAPI nmGetLongInteger(HWND window);
VORNAPI DWORD WINAPI nmGetUnsignedShort(HWND window);
VORNAPI DWORD WINAPI nmGetUnsignedInteger(HWND window);
VORNAPI DWORD WINAPI nmGetUnsignedLong(HWND window);

/* Store the same number; 0 when there is no numeric edit. nmGetFloat answers the address. */
VORNAPI float* WINAPI nmGetFloat(HWND window, float* number);
VORNAPI void WINAPI nmGetDouble(HWND window, double* number);
VORNAPI void WINAPI nmGetLongDouble(HWND window, double* number);

/*
 * Copies the same number, formatted but without grouping and parentheses, into a buffer of at least
 * 64 characters; " " of an empty control. Non-zero; 0, and the buffer untouched, when there is no
 * numeric edit.
 */
VORNAPI BOOL WINAPI nmGetLastGoodNumber(HWND window, char* buffer);

/*
 * Set the number, when VNMM_OKTOCHANGE allows it: within the range if it is checked, truncated by
 * the integer functions and for the integer kinds, with the kind's decimals. A text that reaches
 * the text limit is cut, with VNMN_TEXTCUT. The control is unmodified afterwards and the caret at
 * the start. Redraw. nmSetFloat answers what VNMM_OKTOCHANGE did.
 */
VORNAPI void WINAPI nmSetShort(HWND window, SHORT number);
VORNAPI void WINAPI nmSetUnsignedShort(HWND window, WORD number);
VORNAPI void WINAPI nmSetInteger(HWND window, LONG number);
VORNAPI void WINAPI nmSetUnsignedInteger(HWND window, DWORD number);
VORNAPI void WINAPI nmSetLongInteger(HWND window, LONG number);
VORNAPI void WINAPI nmSetUnsignedLong(HWND window, DWORD number);
VORNAPI BOOL WINAPI nmSetFloat(HWND window, const float* number);
VORNAPI void WINAPI nmSetDouble(HWND window, const double* number);
VORNAPI void WINAPI nmSetLongDouble(HWND window, const double* number);

#ifdef __cplusplus
}
#endif

#endif
