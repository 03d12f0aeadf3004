#pragma once

#include <QString>

#include <map>

/// The user's settings: keys and values that live in "zul.ini" of the home directory. What a
/// project has to remember stands in the project file instead.
class SettingsStore
{
public:
    /// The one of the process; main thread only.
    static SettingsStore& instance();

    void setFile(const QString& path);

    /// Reads the file, merging into what is there. A missing or broken file changes nothing.
    void load();

    /// Writes every key whose value is not empty, in key order. A file that could not be read is
    /// kept beside the new one. Failures are silent.
    void save();

    /// The leading number of the value (0 if there is none), or `def` if the key is absent.
    int integer(const QString& key, int def) const;
    QString string(const QString& key, const QString& def) const;
    void setInteger(const QString& key, int value);
    void setString(const QString& key, const QString& value);

    /// Forgets everything, the file's name too; for tests.
    void reset();

private:
    std::map<QString, QString> m_values;
    QString m_path;
};
