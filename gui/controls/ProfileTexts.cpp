#include "gui/controls/ProfileTexts.h"

#include "profile/ProfileNumbers.h"

#include <QTextDocument>

namespace gui {

QString codeText(std::uint32_t code, const QString& name)
{
    return QString::number(zul::asSigned(code)) + QLatin1Char(' ') + name;
}

QString parameterText(const ProfileParameter& parameter)
{
    return parameter.nme + QStringLiteral(" [") + parameter.pun + QLatin1Char(']');
}

QString parameterToolTip(const ProfileParameter& parameter)
{
    const QString text =
        parameterText(parameter) +
        QString::asprintf("\nLCC:\t%d\nFID:\t%d\nLCL:\t%d\nPVT:\t%d\nDOC:\t%d\n",
                          zul::asSigned(parameter.lcc), zul::asSigned(parameter.fid),
                          zul::asSigned(parameter.lcl), zul::asSigned(parameter.pvt),
                          zul::asSigned(parameter.doc));
    // Names come from files; a tag in them is to be seen, not obeyed.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpacePre) : text;
}

} // namespace gui
