#include "app/Program.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    return lindrel::RunProgram(instance, show);
}
