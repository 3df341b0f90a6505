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

/* What is wrong with a program that has been started; null when nothing is. */
static const char* Watch(const PROCESS_INFORMATION* program) {
    DWORD status = 0;
    HWND window = WaitForWindow(program);

    if (!window) {
        return "it showed no control";
    }
    PostMessage(window, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(program->hProcess, MOST_MILLISECONDS) != WAIT_OBJECT_0) {
        return "it did not end when its window was closed";
    }
    GetExitCodeProcess(program->hProcess, &status);
    return status == 0 ? NULL : "it did not end with 0";
}

static const char* Visit(char* path) {
    STARTUPINFO startup = {0};
    PROCESS_INFORMATION program;
    const char* wrong;

    startup.cb = sizeof startup;
    if (!CreateProcess(path, NULL, NULL, NULL, FALSE, 0, NULL, NULL, &startup, &program)) {
        return "it could not be started";
    }
    wrong = Watch(&program);
    if (wrong) {
        TerminateProcess(program.hProcess, 9);
    }
    CloseHandle(program.hThread);
    CloseHandle(program.hProcess);
    return wrong;
}

int main(int count, char** paths) {
    int failures = 0;
    int i;

    for (i = 1; i < count; i++) {
        const char* wrong = Visit(paths[i]);

        printf("%s: %s.\n", paths[i], wrong ? wrong : "it came and went");
        fflush(stdout);
        failures += wrong != NULL;
    }
    printf("%d of %d came and went.\n", count - 1 - failures, count - 1);
    return failures > 0 || count < 2;
}
