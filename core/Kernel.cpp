#include "core/Kernel.h"

#include "core/Console.h"

namespace gui {

Kernel& Kernel::instance()
{
    static auto* kernel = new Kernel; // lives until process exit
    return *kernel;
}

Kernel::Kernel() : m_home(QStringLiteral("./"))
{
    if (qEnvironmentVariableIsSet("appdata")) {
        const QString value = qEnvironmentVariable("appdata");
        zul::print("HOME: <%s>\n", value.toLocal8Bit().constData());
        m_home = value + QStringLiteral("/ZUL/");
    }
}

Kernel::~Kernel() = default;

QString Kernel::home() const
{
    return m_home;
}

void Kernel::setHome(const QString& home)
{
    m_home = home;
}

DialogMain* Kernel::mainWindow() const
{
    return m_mainWindow;
}

void Kernel::setMainWindow(DialogMain* mainWindow)
{
    m_mainWindow = mainWindow;
}

QApplication* Kernel::application() const
{
    return m_application;
}

void Kernel::setApplication(QApplication* application)
{
    m_application = application;
}

Project* Kernel::project() const
{
    return m_project;
}

void Kernel::setProject(Project* project)
{
    m_project = project;
}

QStyle* Kernel::style1() const
{
    return m_style1;
}

QStyle* Kernel::style2() const
{
    return m_style2;
}

} // namespace gui
