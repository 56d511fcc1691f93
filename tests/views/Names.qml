import QtQuick

/// Names as the disk may hold them, one for each script that is written higher or deeper than Latin
/// letters, or from right to left.
QtObject {
    readonly property var all: ({
            Chinese: "下载的文件夹",
            Thai: "ไฟล์ที่ดาวน์โหลด",
            Arabic: "ملفات التنزيل",
            Devanagari: "डाउनलोड की गई फ़ाइलें",
            Bengali: "ডাউনলোড করা ফাইল",
            emoji: "📦 🗂️ 👩‍💻",
            "all of them": "下ไฟล์ที่ملفडाউ📦"
        })
    readonly property var rows: Object.keys(all).map(script => ({ tag: script, name: all[script] }))
}
