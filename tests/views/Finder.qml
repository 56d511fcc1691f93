import QtQuick

/// Finds what a screen shows, the way a person would: by its text, its symbol or its name.
QtObject {
    /// `root` and everything in it that is seen, in the order in which it was declared.
    function seen(root: Item): var {
        if (!root.visible)
            return [];
        let found = [root];
        for (let index = 0; index < root.children.length; ++index)
            found = found.concat(seen(root.children[index]));
        return found;
    }

    function labels(root: Item): var {
        return seen(root).filter(item => item.Accessible.role === Accessible.StaticText && !item.Accessible.ignored);
    }

    function texts(root: Item): var {
        return labels(root).map(label => label.Accessible.name);
    }

    function label(root: Item, text: string): Item {
        return labels(root).find(label => label.Accessible.name === text) ?? null;
    }

    function symbol(root: Item, name: string): Item {
        return seen(root).find(item => item.name === name && item.size !== undefined) ?? null;
    }

    /// The control with this role and, for the screen reader, this name.
    function control(root: Item, role: int, name: string): Item {
        return seen(root).find(item => item.Accessible.role === role && item.Accessible.name === name) ?? null;
    }

    function button(root: Item, name: string): Item {
        return control(root, Accessible.Button, name);
    }
}
