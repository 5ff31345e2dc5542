// The numbers of the dialogs and of their controls, for the compiler and the resource compiler.
#pragma once

#define IDD_FIND 1100
#define IDD_GOTO_LINE 1300
#define IDD_EDITOR_OPTIONS 1500
#define IDD_JUMP_TO_BOOKMARK 1600
#define IDD_REPLACE 2400
#define IDD_MACRO_REPEAT 2900

// The one field of the dialogs that ask for a number.
#define IDC_NUMBER 101

// "Editor Options". The radio buttons are numbered in a row.
#define IDC_CREATE_MAXIMIZED 201
#define IDC_CREATE_MINIMIZED 202
#define IDC_CREATE_TILED 203
#define IDC_CREATE_DEFAULT 204
#define IDC_TABS_AS_SPACES 210
#define IDC_TAB_SIZE 211
#define IDC_LINE_WRAP 212
#define IDC_WRAP_COLUMN 213
#define IDC_AUTO_BACKUP 214
#define IDC_BACKUP_INTERVAL 215
#define IDC_RESTORE_DIRECTORY 220
#define IDC_RESTORE_FILES 221
#define IDC_SMART_INDENT 222
#define IDC_HAS_MARGIN 223
#define IDC_RESTORE_SIZE 224
#define IDC_MULTIPLE_COPIES 225
#define IDC_FILE_READ 226
#define IDC_FILE_WRITE 227
#define IDC_LINE_NUMBERS 228
#define IDC_FILTER_1 230
#define IDC_FILTER_2 231

// "Find" and "Replace".
#define IDC_FIND_TEXT 301
#define IDC_REPLACE_TEXT 302
#define IDC_WHOLE_WORD 303
#define IDC_MATCH_CASE 304
#define IDC_REGULAR_EXPRESSION 305
#define IDC_REPLACE_ALL 306
#define IDC_SEARCH_UP 307
#define IDC_SEARCH_DOWN 308
#define IDC_REPLACE 309
