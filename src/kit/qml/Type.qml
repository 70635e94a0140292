pragma Singleton

import QtQuick
import Halvorin.Kit

/*! What the interface is lettered in: one name for each role that a text can have. */
QtObject {
    // Headings, from the largest down.
    readonly property font figure: CNUI.cnFont(30, Font.ExtraBold)
    readonly property font title: CNUI.cnFont(21, Font.ExtraBold, 1.4)
    readonly property font dialogTitle: CNUI.cnFont(16, Font.ExtraBold)
    readonly property font cardTitle: CNUI.cnFont(14, Font.ExtraBold)
    readonly property font entryTitle: CNUI.cnFont(13.5, Font.DemiBold)
    readonly property font groupCaption: CNUI.cnFont(11, Font.ExtraBold, 1.5)
    readonly property font sectionCaption: CNUI.cnFont(10.5, Font.ExtraBold, 1.2)
    readonly property font kitCaption: CNUI.cnFont(10, Font.ExtraBold, 1.1)

    // Sentences.
    readonly property font prose: CNUI.cnFont(13.5)
    readonly property font message: CNUI.cnFont(13)
    readonly property font subtitle: CNUI.cnFont(12.5, Font.Medium)
    readonly property font text: CNUI.cnFont(12.5)
    readonly property font summary: CNUI.cnFont(11.5)
    readonly property font tip: CNUI.cnFont(11.5, Font.Medium)
    readonly property font detail: CNUI.cnFont(11)
    readonly property font strongDetail: CNUI.cnFont(11, Font.DemiBold)

    // Controls.
    readonly property font field: CNUI.cnFont(13, Font.Medium)
    readonly property font button: CNUI.cnFont(12.5, Font.Bold)
    readonly property font compactButton: CNUI.cnFont(11.5, Font.Bold)
    readonly property font compactChrome: CNUI.cnFont(11, Font.Bold)
    readonly property font menuTitle: CNUI.cnFont(12, Font.Medium)
    readonly property font row: CNUI.cnFont(12)
    readonly property font currentRow: CNUI.cnFont(12, Font.Bold)

    // Lettering in capitals.
    readonly property font pill: CNUI.cnFont(10, Font.ExtraBold)
    readonly property font tag: CNUI.cnFont(9.5, Font.ExtraBold, 0.7)
    readonly property font dial: CNUI.cnFont(9, Font.Black)
    readonly property font badge: CNUI.cnFont(8.5, Font.Black)

    // Figures that stand under one another.
    readonly property font number: CNUI.cnMono(13, Font.ExtraBold)
    readonly property font count: CNUI.cnMono(11, Font.Bold)
}
