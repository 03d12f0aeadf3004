#include "measure/Milliseconds.h"

QString msText(double seconds)
{
    return QString::asprintf("%.3f ms", seconds * msPerSecond);
}
