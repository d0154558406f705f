#include "profiles/WatermarkProfile.h"
#include "tests/ui/widgets/NameForm.h"
#include "ui/widgets/ColorLabel.h"

#include <QRadioButton>
#include <QSettings>

using testsupport::abc;
using testsupport::NameForm;

namespace {

/// Two radio buttons that choose a watermark's type, and a colour.
class WatermarkForm
{
public:
    WatermarkForm()
    {
        selector.addField(&textField);
        selector.addField(&imageField);
        selector.addField(&colorField);
    }

    QWidget group;
    QRadioButton text{&group};
    QRadioButton image{&group};
    ColorLabel color;
    Field textField{"watermarkType", &text, 0, nullptr};
    Field imageField{"watermarkType", &image, 1, nullptr};
    Field colorField{"textColor", &color, Field::noChoice, nullptr};
    ProfileSelector selector{nullptr};
};

} // namespace

class ProfileSelectorFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadProfileIntoForm_reportsNothing();
    void loadProfileIntoForm_selectsNoItem_whenValueMatchesNone();
    void loadProfileIntoForm_showsNothing_forUnknownProperty();
    void fieldChanged_isReported_forEveryEdit();
    void fieldChanged_isReportedForClicks_notForColours();
    void loadFormIntoProfile_writesAllFields();
    void loadFormIntoProfile_writesEmptyText_whenNoItemIsSelected();
    void loadFormIntoProfile_addsDynamicProperty_forUnknownOne();
    void loadFormIntoProfile_writesCheckedChoiceOnly();
    void isProfileSameAsForm_seesEveryField();
    void isProfileSameAsForm_ignoresUncheckedChoices();
    void isProfileSameAsForm_isTrue_withoutFields();
    void getValueForField_isItsValue();
    void loadDefaultValues_showsFreshProfile_andChangesNone();
    void loadDefaultValues_doesNothing_withoutManager();
};

void ProfileSelectorFormTest::loadProfileIntoForm_reportsNothing()
{
    NameForm form(abc());
    const QSignalSpy changed(&form.selector(), &ProfileSelector::fieldChanged);
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy renamed(&form.selector(), &ProfileSelector::profileNameTextChanged);
    form.selector().loadProfileIntoForm(form.profile(2));
    QCOMPARE(form.prefix().text(), QStringLiteral("of C"));
    QCOMPARE(form.type().currentText(), QStringLiteral("png"));
    QVERIFY(form.pad().isChecked());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(renamed.count(), 0);
    QCOMPARE(form.combo().currentIndex(), -1);

    form.prefix().setText(QStringLiteral("edited"));
    QCOMPARE(changed.count(), 1);
}

void ProfileSelectorFormTest::loadProfileIntoForm_selectsNoItem_whenValueMatchesNone()
{
    NameForm form(abc());
    form.type().setCurrentIndex(0);
    form.profile(0)->setFileOutputType(QStringLiteral("PNG"));
    form.selector().loadProfileIntoForm(form.profile(0));
    QCOMPARE(form.type().currentIndex(), -1);
}

void ProfileSelectorFormTest::loadProfileIntoForm_showsNothing_forUnknownProperty()
{
    ProfileSelector selector(nullptr);
    QLineEdit line(QStringLiteral("before"));
    QComboBox box;
    box.addItem(QStringLiteral("None"), QString());
    Field lineField("noSuchText", &line, Field::noChoice, nullptr);
    Field boxField("noSuchChoice", &box, Field::noChoice, nullptr);
    selector.addField(&lineField);
    selector.addField(&boxField);
    const FileNameProfile profile;
    selector.loadProfileIntoForm(&profile);
    QCOMPARE(line.text(), QString());
    QCOMPARE(box.currentIndex(), -1);
}

void ProfileSelectorFormTest::fieldChanged_isReported_forEveryEdit()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    QList<Field*> changed;
    connect(&form.selector(), &ProfileSelector::fieldChanged, &form.selector(),
            [&changed](Field* field) { changed += field; });
    QTest::keyClicks(&form.prefix(), QStringLiteral("ab"));
    form.type().setCurrentIndex(0);
    form.pad().click();
    QCOMPARE(changed, (QList<Field*>{&form.prefixField(), &form.prefixField(), &form.typeField(),
                                     &form.padField()}));
}

void ProfileSelectorFormTest::fieldChanged_isReportedForClicks_notForColours()
{
    WatermarkForm form;
    QList<Field*> changed;
    connect(&form.selector, &ProfileSelector::fieldChanged, &form.selector,
            [&changed](Field* field) { changed += field; });
    form.image.setChecked(true);
    form.color.setColorValue(Qt::red);
    QCOMPARE(changed, QList<Field*>());
    form.text.click();
    QCOMPARE(changed, QList<Field*>{&form.textField});
}

void ProfileSelectorFormTest::loadFormIntoProfile_writesAllFields()
{
    NameForm form(abc());
    form.prefix().setText(QStringLiteral("p"));
    form.type().setCurrentIndex(0);
    form.pad().setChecked(false);
    FileNameProfile profile;
    form.selector().loadFormIntoProfile(&profile);
    QCOMPARE(profile.fileOutputPrefix(), QStringLiteral("p"));
    QCOMPARE(profile.fileOutputType(), QStringLiteral("jpg"));
    QCOMPARE(profile.fileOutputCounterPadZeros(), false);
    QCOMPARE(profile.fileOutputSuffix(), QStringLiteral("-"));
    QCOMPARE(profile.name(), QString());
}

void ProfileSelectorFormTest::loadFormIntoProfile_writesEmptyText_whenNoItemIsSelected()
{
    NameForm form(abc());
    form.type().setCurrentIndex(-1);
    FileNameProfile profile;
    form.selector().loadFormIntoProfile(&profile);
    QCOMPARE(profile.fileOutputType(), QString());
}

void ProfileSelectorFormTest::loadFormIntoProfile_addsDynamicProperty_forUnknownOne()
{
    ProfileSelector selector(nullptr);
    QLineEdit line(QStringLiteral("text"));
    Field field("noSuchProperty", &line, Field::noChoice, nullptr);
    selector.addField(&field);
    FileNameProfile profile;
    selector.loadFormIntoProfile(&profile);
    QCOMPARE(profile.dynamicPropertyNames(), QList<QByteArray>{"noSuchProperty"});

    const TestHome home;
    QSettings settings(ProfileManager::getSettingsPath(NameForm::fileName()), QSettings::IniFormat);
    profile.save(settings);
    QVERIFY(!settings.contains(QStringLiteral("noSuchProperty")));
}

void ProfileSelectorFormTest::loadFormIntoProfile_writesCheckedChoiceOnly()
{
    WatermarkForm form;
    WatermarkProfile profile;
    profile.setWatermarkType(7);
    form.selector.loadFormIntoProfile(&profile);
    QCOMPARE(profile.watermarkType(), 7);
    form.image.setChecked(true);
    form.selector.loadFormIntoProfile(&profile);
    QCOMPARE(profile.watermarkType(), 1);
    form.text.setChecked(true);
    form.selector.loadFormIntoProfile(&profile);
    QCOMPARE(profile.watermarkType(), 0);
}

void ProfileSelectorFormTest::isProfileSameAsForm_seesEveryField()
{
    NameForm form(abc());
    FileNameProfile* const profile = form.profile(0);
    form.selector().loadProfile(profile);
    QVERIFY(form.selector().isProfileSameAsForm(profile));

    form.prefix().setText(QStringLiteral("other"));
    QVERIFY(!form.selector().isProfileSameAsForm(profile));
    form.selector().loadProfileIntoForm(profile);
    form.type().setCurrentIndex(0);
    QVERIFY(!form.selector().isProfileSameAsForm(profile));
    form.selector().loadProfileIntoForm(profile);
    form.pad().setChecked(!form.pad().isChecked());
    QVERIFY(!form.selector().isProfileSameAsForm(profile));
    form.selector().loadFormIntoProfile(profile);
    QVERIFY(form.selector().isProfileSameAsForm(profile));
}

void ProfileSelectorFormTest::isProfileSameAsForm_ignoresUncheckedChoices()
{
    WatermarkForm form;
    WatermarkProfile profile;
    for (const int type : {0, 1}) {
        profile.setWatermarkType(type);
        form.selector.loadProfileIntoForm(&profile);
        QVERIFY(form.selector.isProfileSameAsForm(&profile));
        profile.setWatermarkType(1 - type);
        QVERIFY(!form.selector.isProfileSameAsForm(&profile));
    }
    form.selector.loadProfileIntoForm(&profile);
    form.color.setColorValue(Qt::red);
    QVERIFY(!form.selector.isProfileSameAsForm(&profile));
}

void ProfileSelectorFormTest::isProfileSameAsForm_isTrue_withoutFields()
{
    const FileNameProfile profile;
    QVERIFY(ProfileSelector(nullptr).isProfileSameAsForm(&profile));
}

void ProfileSelectorFormTest::getValueForField_isItsValue()
{
    NameForm form(abc());
    form.type().setCurrentIndex(1);
    QCOMPARE(form.selector().getValueForField(&form.typeField()), QVariant(QStringLiteral("png")));
}

void ProfileSelectorFormTest::loadDefaultValues_showsFreshProfile_andChangesNone()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.manager().saveProfiles();
    const QSignalSpy changed(&form.selector(), &ProfileSelector::fieldChanged);
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const int made = form.keeper().madeCount();
    form.selector().loadDefaultValues();

    QCOMPARE(form.keeper().madeCount(), made + 1);
    QCOMPARE(form.prefix().text(), QString());
    QCOMPARE(form.type().currentIndex(), -1);
    QVERIFY(form.pad().isChecked());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(form.combo().currentText(), QStringLiteral("A"));
    QCOMPARE(form.profile(0)->fileOutputPrefix(), QStringLiteral("of A"));
    QCOMPARE(form.manager().profiles().size(), 3);
    QCOMPARE(form.combo().count(), 3);
    QCOMPARE(form.storedPrefixes(),
             (QStringList{QStringLiteral("of A"), QStringLiteral("of B"), QStringLiteral("of C")}));

    form.selector().saveProfile();
    QCOMPARE(form.profile(0)->fileOutputPrefix(), QString());
}

void ProfileSelectorFormTest::loadDefaultValues_doesNothing_withoutManager()
{
    WatermarkForm form;
    form.image.setChecked(true);
    form.selector.loadDefaultValues();
    QVERIFY(form.image.isChecked());
}

QTEST_MAIN(ProfileSelectorFormTest)
#include "ProfileSelectorFormTest.moc"
