// The program itself, ended by its first frame.

#include "firstframe.h"

#include "shell/launch/halvorinapp.h"

int main(int argc, char **argv)
{
    const HalvorinApp app(argc, argv);
    return runUntilFirstFrame(app.window());
}
