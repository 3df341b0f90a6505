/* What the dialog's template and its program share. */
#ifndef DIALOG_H
#define DIALOG_H

#define HOST_DIALOG 1

#define BUTTON_ID 101
#define BAR_ID 102
#define DIAL_ID 103
#define CALENDAR_ID 104
#define COMBO_ID 105
#define FONT_ID 106
#define PAD_ID 107
#define NUMBER_ID 108
#define DATE_ID 109
#define TIME_ID 110
#define LIST_ID 111

#endif
