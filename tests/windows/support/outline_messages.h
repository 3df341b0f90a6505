// The messages of an outline list that a sender of random numbers must leave out.
#pragma once

#include <windows.h>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

// Those that carry addresses: of texts, records and buffers, and handles of items, which are the
// items' addresses.
inline const std::vector<UINT>& OutlineMessagesWithAddresses() {
    static const std::vector<UINT> messages = {WM_MEASUREITEM,         LB_ADDSTRING,
                                               LB_INSERTSTRING,        LB_GETTEXT,
                                               LB_SELECTSTRING,        LB_DIR,
                                               LB_FINDSTRING,          LB_GETSELITEMS,
                                               LB_SETTABSTOPS,         LB_ADDFILE,
                                               LB_GETITEMRECT,         LB_FINDSTRINGEXACT,
                                               OLBM_ADDCHILDSTRING,    OLBM_ADDCHILDSTRINGEX,
                                               OLBM_ADDSTRING,         OLBM_COPYCHILDREN,
                                               OLBM_COPYCHILDRENEX,    OLBM_COPYITEM,
                                               OLBM_COPYITEMEX,        OLBM_DELETESTRINGEX,
                                               OLBM_DELETESUBTREEEX,   OLBM_FINDSTRING,
                                               OLBM_FINDSTRINGEX,      OLBM_FINDSTRINGEXACT,
                                               OLBM_FINDSTRINGEXACTEX, OLBM_GETCHILDHANDLEEX,
                                               OLBM_GETFULLPATH,       OLBM_GETFULLPATHEX,
                                               OLBM_GETITEMDATAEX,     OLBM_GETITEMHEIGHTEX,
                                               OLBM_GETITEMRECT,       OLBM_GETPATHSEPARATOR,
                                               OLBM_GETSELITEMS,       OLBM_GETTEXT,
                                               OLBM_GETTEXTEX,         OLBM_GETTEXTLENGTHEX,
                                               OLBM_HANDLETOINDEX,     OLBM_INSERTSTRING,
                                               OLBM_INSERTSTRINGEX,    OLBM_LOCKITEMEX,
                                               OLBM_MOVECHILDREN,      OLBM_MOVECHILDRENEX,
                                               OLBM_MOVEITEM,          OLBM_MOVEITEMEX,
                                               OLBM_HASCHILDRENEX,     OLBM_QUERYLEVELEX,
                                               OLBM_QUERYLOCKEX,       OLBM_QUERYOPENEX,
                                               OLBM_QUERYPARENTEX,     OLBM_QUERYVISIBLE,
                                               OLBM_SELECTSTRING,      OLBM_SETBITMAPINDEXEX,
                                               OLBM_SETBITMAPSEX,      OLBM_SETITEMDATAEX,
                                               OLBM_SETITEMHEIGHTEX,   OLBM_SETITEMTEXT,
                                               OLBM_SETITEMTEXTEX};
    return messages;
}

} // namespace vorn::test
