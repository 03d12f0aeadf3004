#pragma once

#include <cstdint>
#include <map>
#include <string>

/// One option of the command line.
struct CommandOption
{
    static constexpr std::int32_t flag = 0;
    static constexpr std::int32_t withValue = 1;

    std::int32_t kind = flag;
    std::int32_t seen = 0; ///< 1 once the option occurred
    std::string description;
    std::string value; ///< the default until parsing changes it
};

/// Table and parser of the command line's options.
class OptionParser
{
public:
    /// The one of the process.
    static OptionParser& instance();

    void addFlag(const std::string& option, const std::string& description);
    void addValue(const std::string& option, const std::string& description,
                  const std::string& defaultValue);

    /// Takes the arguments apart. False if an unknown one was met, which costs a console line and
    /// does not stop the parsing.
    bool parse(int argumentCount, const char* const* arguments);

    /// Whether the option occurred; false for an option that is not in the table.
    bool isSet(const std::string& option) const;
    /// The option's current value, empty for an option that is not in the table.
    std::string value(const std::string& option) const;

    /// Prints the help text.
    void usage() const;

private:
    std::string m_programName;
    std::map<std::string, CommandOption> m_options;
};
