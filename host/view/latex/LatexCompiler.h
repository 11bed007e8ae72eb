#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>

#include <map>
#include <stdexcept>

namespace vantrix::view {

/* What is wrong with a LaTeX text, or with the programs that set it; a sentence for the user. */
class LatexError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/*
 * Sets LaTeX texts by the programs `latex` and `dvipng`, where they are found in the PATH. They run in a temporary
 * folder, may neither run other programs nor reach files outside of it and of their own installation, and are stopped
 * after `timeLimit` milliseconds. What was set is kept, so that other sizes and colours need `dvipng` only.
 */
class LatexCompiler
{
public:
    explicit LatexCompiler(int timeLimit = 15000)
        : m_timeLimit(timeLimit)
    {}

    /* Height of a capital letter in the text as it is set, in inches: of 10 point Computer Modern. */
    static constexpr double capitalHeight = 6.83 / 72.27;

    /* The text with `dpi` pixels for an inch, cropped, on a transparent ground. Throws LatexError. */
    QImage picture(const QString& source, const QColor& color, int dpi);

private:
    QByteArray dvi(const QString& source);
    void run(const QString& folder, const QString& program, const QStringList& arguments, QByteArray& output) const;

    int m_timeLimit;
    std::map<QString, QByteArray> m_dvi;
};

} // namespace vantrix::view
