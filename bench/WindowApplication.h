#pragma once

#include <QApplication>

namespace bench {

/// The application of a program that measures windows in real time: on the offscreen platform
/// unless the caller chose another, with the program's device modules in reach.
class WindowApplication
{
public:
    WindowApplication(int& argumentCount, char** arguments);

private:
    QApplication m_application;
};

} // namespace bench
