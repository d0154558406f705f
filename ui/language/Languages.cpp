#include "ui/language/Languages.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <memory>

namespace {

const QLatin1String english("en");
const QLatin1String languageKey("language");
const QLatin1String cataloguePrefix("morvantile_");
const QLatin1String catalogueEnd(".qm");

QString qtFolder()
{
#if QT_VERSION_MAJOR < 6
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

/// Loads the first such catalogue into the application. Returns false if no folder has one.
bool load(QCoreApplication& app, const QString& name, const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (translator->load(name, folder)) {
            QTranslator* const loaded = translator.release();
            loaded->setParent(&app);
            return QCoreApplication::installTranslator(loaded);
        }
    }
    return false;
}

} // namespace

QStringList Languages::folders()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return {programs.filePath(QStringLiteral("../share/morvantile/translations")),
            programs.filePath(QStringLiteral("../Resources/translations"))};
}

QStringList Languages::available(const QStringList& folders)
{
    QStringList languages{english};
    for (const QString& folder : folders) {
        const QStringList files = QDir(folder).entryList(
            {cataloguePrefix + QLatin1Char('*') + catalogueEnd}, QDir::Files);
        for (const QString& file : files) {
            languages += file.mid(cataloguePrefix.size()).chopped(catalogueEnd.size());
        }
    }
    languages.removeDuplicates();
    languages.sort();
    return languages;
}

QString Languages::nativeName(const QString& language)
{
    // Qt says, for example, "American English" if no country is given.
    if (language == english) {
        return QStringLiteral("English");
    }
    const QString name = QLocale(language).nativeLanguageName();
    return name.left(1).toUpper() + name.mid(1);
}

QString Languages::bestOf(const QStringList& preferred, const QStringList& available)
{
    for (QString language : preferred) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        while (!language.isEmpty()) {
            if (available.contains(language)) {
                return language;
            }
            language = language.section(QLatin1Char('_'), 0, -2);
        }
    }
    return english;
}

QString Languages::inArguments(const QStringList& arguments)
{
    const QString option = QStringLiteral("--language=");
    for (const QString& argument : arguments) {
        if (argument == QLatin1String("--")) {
            break;
        }
        if (argument.startsWith(option)) {
            return argument.mid(option.size());
        }
    }
    return {};
}

QString Languages::chosen(const QSettings& settings)
{
    return settings.value(languageKey).toString();
}

void Languages::setChosen(QSettings& settings, const QString& language)
{
    if (language.isEmpty()) {
        settings.remove(languageKey);
    } else {
        settings.setValue(languageKey, language);
    }
}

void Languages::use(QCoreApplication& app, const QString& language, const QStringList& folders)
{
    const QStringList preferred =
        language.isEmpty() ? QLocale::system().uiLanguages() : QStringList{language};
    const QString best = bestOf(preferred, available(folders));
    if (best == english) {
        return;
    }
    if (!load(app, QLatin1String("qtbase_") + best, folders + QStringList{qtFolder()})) {
        qDebug() << "No catalogue of Qt for" << best;
    }
    const bool isLoaded = load(app, cataloguePrefix + best, folders);
    if (isLoaded && qobject_cast<QGuiApplication*>(&app) != nullptr) {
        QGuiApplication::setLayoutDirection(QLocale(best).textDirection());
    }
}
