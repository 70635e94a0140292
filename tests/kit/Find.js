.pragma library

// Looks for items below an item, as a person looks at a screen: by what can be seen.

// All items below `root` that `accepts`, those drawn first coming first.
function all(root, accepts) {
    const found = [];
    const children = root.children;
    for (let i = 0; i < children.length; ++i) {
        if (accepts(children[i]))
            found.push(children[i]);
        found.push(...all(children[i], accepts));
    }
    return found;
}

function first(root, accepts) {
    return all(root, accepts)[0] ?? null;
}

// Visible lines of text. The two faint copies that make lettering look engraved count as well.
function texts(root) {
    return all(root, item => isText(item) && item.visible && item.text !== "").map(item => item.text);
}

function isText(item) {
    return item.textFormat !== undefined && item.lineCount !== undefined && item.elide !== undefined;
}

function isButton(item) {
    return item.clicked !== undefined && item.down !== undefined && item.label !== undefined;
}

// The visible button with this label or, if it has none, this tip; null if there isn't any.
function button(root, label) {
    return first(root, item => isButton(item) && item.visible && (item.label || item.tip) === label);
}

function buttons(root) {
    return all(root, item => isButton(item) && item.visible);
}

function text(root, words) {
    return first(root, item => isText(item) && item.visible && item.text === words);
}

// The field that text is typed into.
function field(root) {
    return first(root, item => item.selectAll !== undefined && item.preeditText !== undefined && item.echoMode !== undefined);
}

// What scrolls.
function scroller(root) {
    return first(root, item => item.contentY !== undefined && item.contentHeight !== undefined && item.flickDeceleration !== undefined);
}
