// The numbers of the program's resources, for the compiler and the resource compiler.
#pragma once

#define IDI_VEXA 1
#define IDI_DOCUMENT 2

#define IDB_TOOLBAR_16 11
#define IDB_TOOLBAR_24 12
#define IDB_TOOLBAR_32 13
