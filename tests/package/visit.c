/*
 * Runs a program, waits until it shows a control of the library's, closes its window and waits for
 * its end: visit PROGRAM. Ends with 0, and says so, when the program came to show something and
 * then ended with 0.
 */
#include <windows.h>
#include <stdio.h>
#include <string.h>

#define MOST_MILLISECONDS 60000
#define STEP_MILLISECONDS 50

/* What is looked for, and found. */
typedef struct Search {
    DWORD process;
    HWND window; /* visible, top-level, with a control or a control itself */
} Search;

static BOOL IsControl(HWND window) {
    char name[64] = "";

    GetClassName(window, name, sizeof name);
    return strncmp(name, "VORN", 4) == 0 && IsWindowVisible(window);
}

static BOOL CALLBACK FindControl(HWND window, LPARAM found) {
    if (IsControl(window)) {
        *(BOOL*)found = TRUE;
        return FALSE;
    }
    return TRUE;
}

static BOOL CALLBACK FindWindowOf(HWND window, LPARAM lParam) {
    Search* search = (Search*)lParam;
    DWORD process = 0;
    BOOL found = FALSE;

    GetWindowThreadProcessId(window, &process);
    if (process != search->process || !IsWindowVisible(window)) {
        return TRUE;
    }
    found = IsControl(window);
    if (!found) {
        EnumChildWindows(window, FindControl, (LPARAM)&found);
    }
    if (found) {
        search->window = window;
    }
    return !found;
}

static HWND WaitForWindow(const PROCESS_INFORMATION* program) {
    Search search = {0};
    int waited;

    search.process = program->dwProcessId;
    for (waited = 0; waited < MOST_MILLISECONDS; waited += STEP_MILLISECONDS) {
        EnumWindows(FindWindowOf, (LPARAM)&search);
        if (search.window || WaitForSingleObject(program->hProcess, STEP_MILLISECONDS) == 0) {
            break;
        }
    }
    return search.window;
}

/* 0 when the program showed a control and ended with 0. */
static int Visit(const PROCESS_INFORMATION* program) {
    DWORD status = 0;
    HWND window = WaitForWindow(program);

    if (!window) {
        printf("It showed no control.\n");
        return 2;
    }
    PostMessage(window, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(program->hProcess, MOST_MILLISECONDS) != WAIT_OBJECT_0) {
        printf("It did not end when its window was closed.\n");
        return 3;
    }
    GetExitCodeProcess(program->hProcess, &status);
    if (status != 0) {
        printf("It ended with %lu.\n", status);
        return 4;
    }
    printf("It came and went.\n");
    return 0;
}

int main(int count, char** arguments) {
    STARTUPINFO startup = {0};
    PROCESS_INFORMATION program;
    int result;

    startup.cb = sizeof startup;
    if (count != 2 ||
        !CreateProcess(NULL, arguments[1], NULL, NULL, FALSE, 0, NULL, NULL, &startup, &program)) {
        printf("usage: visit PROGRAM; the program must be one that can be started.\n");
        return 1;
    }
    result = Visit(&program);
    if (result != 0) {
        TerminateProcess(program.hProcess, 9);
    }
    return result;
}
