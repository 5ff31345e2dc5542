-- Links between chapters lead to their pages.
function Link(link)
    if not link.target:match("^%a+:") then
        link.target = link.target:gsub("%.md$", ".html"):gsub("%.md#", ".html#")
    end
    return link
end
