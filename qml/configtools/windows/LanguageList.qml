// The languages of the menu: the code of each, and its name. The order is that of languageCodes in app/languages.h.
import QtQml

QtObject {
    /// Maps of "code" (as stored in the settings) and "label".
    property var entries: [
        {code: "zh_CN", label: "简体中文"}, {code: "en_US", label: "English"},
        {code: "ro_RO", label: "Romanian"}, {code: "JP_US", label: "日本語"},
        {code: "de_DE", label: "German"}, {code: "es_ES", label: "Español"},
        {code: "fr_FR", label: "French"}, {code: "it_IT", label: "Italian"},
        {code: "nl_NL", label: "Dutch"}, {code: "no_NO", label: "Norwegian"},
        {code: "pt_PT", label: "Portuguese"}, {code: "sv_SV", label: "Swedish"},
        {code: "gl_GL", label: "Galician"}, {code: "ca_CA", label: "Catalan"}
    ]

    /// Removes the entries with these indexes, which are in ascending order: languages without a translation file. The
    /// last one is removed first, so that the other indexes stay valid. Called once: the indexes are of all languages.
    function remove(indexes) {
        const kept = entries.slice();
        for (let i = indexes.length - 1; i >= 0; --i)
            kept.splice(indexes[i], 1);
        entries = kept;
    }
}
