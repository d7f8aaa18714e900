#include "editor/texts.h"

#include "platform/failure.h"
#include "qt/units.h"
#include "services/shared_services.h"

namespace plexel {

QString Say(Text text) {
  const auto number = static_cast<std::int32_t>(text);
  try {
    const std::string found = GetText(number);
    if (!found.empty()) return ToQt(found);
  } catch (const Failure& failure) {
    qWarning("%s", failure.what());
  }
  return "@" + QString::number(number);
}

QLocale UserLocale() {
  const QLocale::Language language = LanguageOf(GetLanguageName());
  return language == QLocale::AnyLanguage ? QLocale::system() : QLocale(language);
}

QLocale::Language LanguageOf(const std::string& name) {
  for (int language = QLocale::C + 1; language <= QLocale::LastLanguage; ++language) {
    const auto known = static_cast<QLocale::Language>(language);
    if (QLocale::languageToString(known) == ToQt(name)) return known;
  }
  return QLocale::AnyLanguage;
}

QString LanguageTitle(const std::string& name) {
  const QLocale::Language language = LanguageOf(name);
  const QString title =
      language == QLocale::AnyLanguage ? QString() : QLocale(language, QLocale::World).nativeLanguageName();
  return title.isEmpty() ? ToQt(name) : title;
}

}  // namespace plexel
