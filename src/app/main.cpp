#include "SubMain.h"

int main(int argc, char** argv) {
    return coinlight::SubMain(argc, argv);
}
