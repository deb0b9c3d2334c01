#include "terminal/KeyReader.hpp"

#if defined(_WIN32)
#include <conio.h>
#else
#include <unistd.h>
#endif

namespace velmara::console {

#if defined(_WIN32)

KeyReader::KeyReader() = default;

KeyReader::~KeyReader() = default;

int KeyReader::read()
{
    constexpr int controlC = 3;
    int const key = _getch();
    return key == controlC ? end : key;
}

#else

KeyReader::KeyReader()
{
    tcgetattr(STDIN_FILENO, &previous_);
    termios single = previous_;
    single.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    tcsetattr(STDIN_FILENO, TCSADRAIN, &single);
}

KeyReader::~KeyReader()
{
    tcsetattr(STDIN_FILENO, TCSADRAIN, &previous_);
}

int KeyReader::read()
{
    unsigned char key = 0;
    return ::read(STDIN_FILENO, &key, 1) == 1 ? key : end;
}

#endif

} // namespace velmara::console
