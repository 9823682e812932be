#include "TourProgram.h"

#include <clocale>

int main(int argc, char **argv)
{
    // As Qt does when it starts; until then nobody knows in which encoding the arguments are.
    std::setlocale(LC_ALL, "");
    TourProgram program(&argc, argv, TourProgram::Read(argc, argv));
    program.Open();
    return program.Run();
}
