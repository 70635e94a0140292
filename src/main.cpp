#include "shell/launch/halvorinapp.h"

int main(int argc, char **argv)
{
    HalvorinApp app(argc, argv);
    return app.run();
}
