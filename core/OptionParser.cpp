#include "core/OptionParser.h"

#include "core/Console.h"

OptionParser& OptionParser::instance()
{
    static auto* parser = new OptionParser; // lives until process exit
    return *parser;
}

void OptionParser::addFlag(const std::string& option, const std::string& description)
{
    m_options[option] = {CommandOption::flag, 0, description, "false"};
}

void OptionParser::addValue(const std::string& option, const std::string& description,
                            const std::string& defaultValue)
{
    m_options[option] = {CommandOption::withValue, 0, description, defaultValue};
}

bool OptionParser::parse(int argumentCount, const char* const* arguments)
{
    if (argumentCount > 0 && arguments[0] != nullptr) {
        m_programName = arguments[0];
    }
    bool allKnown = true;
    for (int i = 1; i < argumentCount; ++i) {
        const auto found = m_options.find(arguments[i]);
        if (found == m_options.end()) {
            zul::print("unknown option %s\n", arguments[i]);
            allKnown = false;
            continue;
        }
        CommandOption& option = found->second;
        option.seen = 1;
        if (option.kind == CommandOption::flag) {
            option.value = option.value == "true" ? "false" : "true";
        } else if (i + 1 < argumentCount) {
            option.value = arguments[++i];
        }
    }
    return allKnown;
}

bool OptionParser::isSet(const std::string& option) const
{
    const auto found = m_options.find(option);
    return found != m_options.end() && found->second.seen != 0;
}

std::string OptionParser::value(const std::string& option) const
{
    const auto found = m_options.find(option);
    return found != m_options.end() ? found->second.value : std::string();
}

void OptionParser::usage() const
{
    zul::print("Usage of %s :\n", m_programName.c_str());
    for (const auto& [text, option] : m_options) {
        if (option.kind == CommandOption::withValue) {
            zul::print("%-8s [%s] default [%s]\n", text.c_str(), option.description.c_str(),
                       option.value.c_str());
        } else {
            zul::print("%-8s %s\n", text.c_str(), option.description.c_str());
        }
    }
    zul::print("\n");
}
